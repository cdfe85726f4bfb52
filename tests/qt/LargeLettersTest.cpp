// SPDX-License-Identifier: MIT
#include "tests/HelpFile.h"
#include "tests/qt/FormTest.h"
#include "tests/stage/Calls.h"

namespace halvek {
namespace {

constexpr int kLeastTarget = 24;    // pixels
constexpr double kSmallest = 0.85;  // of the desktop's font

/// The space that a control's own text takes, without the air around it.
QSize TextSize(const QWidget& part) {
    constexpr QSize kEdges(4, 2);
    if (const auto* const tool = qobject_cast<const QToolButton*>(&part)) {
        if (tool->arrowType() != Qt::NoArrow) return {};
        return tool->icon().isNull() ? tool->fontMetrics().size(0, tool->text()) + kEdges
                                     : tool->sizeHint();
    }
    if (qobject_cast<const QCheckBox*>(&part) != nullptr) return part.sizeHint();
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&part)) {
        return button->fontMetrics().size(Qt::TextShowMnemonic, button->text()) + 2 * kEdges;
    }
    if (const auto* const label = qobject_cast<const QLabel*>(&part)) {
        if (label->text().isEmpty()) return {};
        const int height = label->heightForWidth(label->width());
        const bool mayShrink = label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        return label->wordWrap() ? QSize(0, height)
                                 : QSize(mayShrink ? 0 : label->sizeHint().width(),
                                         label->fontMetrics().height());
    }
    if (qobject_cast<const QLineEdit*>(&part) != nullptr) {
        return {1, part.fontMetrics().height() + kEdges.height()};
    }
    return {};
}

/// The cell of a table whose text takes more space than it has; rows and columns are alike.
QSize Lacking(const QTableView& table) {
    const QFontMetrics font = table.fontMetrics();
    int widest = 0;
    for (int column = 0; column < table.model()->columnCount(); ++column) {
        const QString text = table.model()->index(0, column).data().toString();
        widest = std::max(widest, font.horizontalAdvance(text) - table.columnWidth(column));
    }
    return {widest, font.height() - table.rowHeight(1)};
}

bool IsTarget(const QWidget& part) {
    return qobject_cast<const QAbstractButton*>(&part) != nullptr && part.isEnabled();
}

/// Whether Qt places the children.
bool IsWhole(const QWidget& part) {
    return qobject_cast<const QAbstractScrollArea*>(&part) != nullptr ||
           qobject_cast<const QLineEdit*>(&part) != nullptr;
}

/// Parts of a message box whose places are rules: their frames may cover each other.
bool IsPlacedByRule(const QWidget& part) {
    const QString& name = part.objectName();
    return name == "frMSG" || name == "frButtons" || name == "lblText";
}

/// Whether a message box shows all of its text, or a button that leads to the rest.
bool IsTextInReach(const QTextEdit& text) {
    const auto* const later = text.window()->findChild<const QWidget*>("cmdUpDn_0");
    QTextCursor end(text.document());
    end.movePosition(QTextCursor::End);
    const bool isWhole = text.cursorRect(end).bottom() < text.viewport()->height();
    if (later == nullptr) return isWhole;
    return (isWhole || later->isEnabled()) && text.geometry().right() <= later->x();
}

/// Whether the font of a part is a rule.
bool HasFixedFont(const QWidget& part) {
    for (const QWidget* whole = &part; whole != nullptr; whole = whole->parentWidget()) {
        const QString& name = whole->objectName();
        if (name == "MonthView1" || name == "grdSelection" || name == "lblText") return true;
    }
    return false;
}

void AddFaults(const QWidget& part, QStringList& faults) {
    const auto fault = [&](const QString& what) { faults += part.objectName() + ' ' + what; };
    const auto lacks = [](QSize needed, QSize has) {
        return needed.width() > has.width() || needed.height() > has.height();
    };
    if (lacks(TextSize(part), part.size())) fault("is too small for its text");
    if (IsTarget(part) && lacks({kLeastTarget, kLeastTarget}, part.size())) fault("is hard to hit");
    if (!HasFixedFont(part) && !TextSize(part).isEmpty() &&
        part.font().pointSizeF() < kSmallest * QApplication::font().pointSizeF()) {
        fault("has small letters");
    }
    if (const auto* const table = qobject_cast<const QTableView*>(&part)) {
        if (table->objectName().startsWith("qt_calendar") && lacks(Lacking(*table), {0, 0})) {
            fault("cuts its cells");
        }
    }
    const auto* const message = qobject_cast<const QTextEdit*>(&part);
    if (part.objectName() == "lblText" && !IsTextInReach(*message)) fault("hides lines");
    if (IsWhole(part)) return;
    std::vector<const QWidget*> children;
    for (const QObject* const child : part.children()) {
        const auto* const widget = qobject_cast<const QWidget*>(child);
        if (widget == nullptr || widget->isWindow() || !widget->isVisible()) continue;
        AddFaults(*widget, faults);
        if (widget->testAttribute(Qt::WA_TransparentForMouseEvents) || IsPlacedByRule(*widget)) {
            continue;
        }
        if (!part.rect().contains(widget->geometry()))
            faults += QStringLiteral("%1 is cut").arg(widget->objectName());
        for (const QWidget* const other : children) {
            if (!other->geometry().intersects(widget->geometry())) continue;
            faults +=
                QStringLiteral("%1 lies on %2").arg(widget->objectName(), other->objectName());
        }
        children.push_back(widget);
    }
}

std::string FaultsOf(const QWidget& window) {
    QStringList faults;
    AddFaults(window, faults);
    if (!window.screen()->geometry().contains(window.windowHandle()->frameGeometry()))
        faults += "does not fit on the screen";
    return faults.join("; ").toStdString();
}

struct LargeLettersTest : FormTest, testing::WithParamInterface<int> {
    LargeLettersTest() {
        QFont font = font_;
        font.setPointSize(GetParam());
        QApplication::setFont(font);
        const QPoint corner = QApplication::screens().constLast()->geometry().topLeft();
        host_ = OpenHostWindow(QRect(corner + QPoint(40, 40), QSize(200, 100)));
    }
    ~LargeLettersTest() override { QApplication::setFont(font_); }

    static void Measure(const std::function<void()>& open) {
        const User user([&](QDialog& dialog) {
            EXPECT_EQ(FaultsOf(dialog), "");
            CloseRequest(dialog);
            if (dialog.isVisible()) PressKey(dialog, Qt::Key_Return);
        });
        open();
    }

    const QFont font_ = QApplication::font();
    std::unique_ptr<QWidget> host_;
};

INSTANTIATE_TEST_SUITE_P(Points, LargeLettersTest, testing::Values(9, 12, 16, 20));

TEST_P(LargeLettersTest, NothingIsCutOrHiddenInAnyDialog) {
    const QRegularExpression measured(
        "^(calendar|calculator|palette|box .*|font .*)$|^list (in|lo)");
    for (const Call& call : Calls()) {
        if (!measured.match(call.name).hasMatch() || call.name.contains("ends")) continue;
        SCOPED_TRACE(qPrintable(call.name));
        Measure([&] { call.open(*host_); });
    }
    Measure([&] { desktop_.ShowStockMessage(u"Invalid", StockIcon::Critical, u"Visits"); });
}

// About as many lines as there is room for
TEST_P(LargeLettersTest, NorIsTheEndOfAMessage) {
    for (const FontSizeChoice font : {mb5, mb8, mb9, mb14}) {
        for (int lines = 16; lines < 40; ++lines) {
            SCOPED_TRACE(testing::Message() << lines << " lines in font " << font);
            const QString visits = QString("03/07/2004  Garcia, Maria\r\n").repeated(lines);
            Measure([&] {
                utils_->ShowMsgBox(visits, mbOkCancel, mbQuestion, u"Visits", mbWhite, font);
            });
        }
    }
}

TEST_P(LargeLettersTest, NorInTheWindowsBesideThem) {
    const HelpFile help(1);
    Start(true);
    utils_->ShowInDebug(u"line");
    utils_->ShowHelp(0, 100, help.Path().u16string());
    for (const char* const name : {"HelpViewer", "frmDebug"}) {  // the last one opened is active
        QWidget& window = Window(name);
        Activate(window);
        PressKey(window, Qt::CTRL | Qt::Key_F);
        PressKey(window, Qt::Key_Question);
        EXPECT_EQ(FaultsOf(window), "") << name;
        window.setGeometry(QRect(host_->pos(), QSize(420, 400)));
        EXPECT_TRUE(Soon([&] { return FaultsOf(window).empty(); })) << FaultsOf(window);
    }
}

}  // namespace
}  // namespace halvek
