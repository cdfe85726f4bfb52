// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolTip>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace halvek {
namespace {

const QString kList = QStringLiteral("H:A\tAlpha\t0:B\t<b>Beta</b>\t1:C\tGamma\t0:D\tDelta\t0:");

/// Codes N1 to N`count`.
QString Numbered(int count) {
    QString list = QStringLiteral("H:");
    for (int i = 1; i <= count; ++i) list += QStringLiteral("N%1\tName %1\t0:").arg(i);
    return list;
}

/// The dialog as its user sees it.
struct Seen {
    QDialog& dialog;
    QLineEdit& box = Find<QLineEdit>(dialog, "txtSelect");
    QTableView& grid = Find<QTableView>(dialog, "grdSelection");

    /// Types into the control with the focus.
    void Type(const char* text) const {
        for (; *text != 0; ++text) QTest::keyClick(dialog.windowHandle(), *text);
    }
    void Press(QKeyCombination key) const { PressKey(dialog, key); }
    QModelIndex IndexOf(int entry) const {
        return grid.model()->index((entry - 1) / 10, (entry - 1) % 10);
    }
    QPoint PlaceOf(int entry) const {
        return grid.viewport()->mapTo(&dialog, grid.visualRect(IndexOf(entry)).center());
    }
    void ClickEntry(int entry) const {
        QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, {}, PlaceOf(entry));
    }
    QWidget& Header() const { return *grid.horizontalHeader()->viewport(); }
    /// The codes that are ticked, joined.
    QString Ticked() const {
        QStringList codes;
        for (int entry = 1; entry <= 10 * grid.model()->rowCount(); ++entry) {
            const QModelIndex index = IndexOf(entry);
            if (index.data(Qt::CheckStateRole) == Qt::Checked) codes += index.data().toString();
        }
        return codes.join(QLatin1Char(','));
    }
};

auto Press(std::vector<Qt::Key> keys) {
    return [keys](const Seen& seen) {
        for (const Qt::Key key : keys) seen.Press(key);
    };
}

auto ClickOn(const char* name) {
    return [name](const Seen& seen) { Click(seen.dialog, Find(seen.dialog, name)); };
}

/// The text of the message box that the acts open, which Enter answers; empty for none.
QString MessageOf(const std::function<void()>& acts) {
    QString message;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        QWidget* const box = QApplication::activeModalWidget();
        if (box == nullptr || !box->isActiveWindow()) return;
        if (box->objectName() != QLatin1String("frmMessageBox")) return;
        message += Find<QTextEdit>(*box, "lblText").toPlainText();
        PressKey(*box, Qt::Key_Return);
    });
    look.start(0);
    acts();
    look.stop();
    QWidget* const dialog = QApplication::activeModalWidget();
    EXPECT_TRUE(dialog == nullptr || Soon([&] { return dialog->isActiveWindow(); }));
    return message;
}

class SelectGridFormTest : public FormTest {
  protected:
    using Acts = std::function<void(const Seen&)>;

    /// What the user's acts choose; a dialog that they leave open is closed with Escape.
    QString Chosen(const Acts& acts, const QString& list = kList, const QString& selected = {},
                   std::u16string typed = {}, std::shared_ptr<PopupTarget> target = nullptr) {
        const User user([&](QDialog& dialog) {
            acts({dialog});
            // The first one may close the find bar only.
            for (int i = 0; i < 2 && dialog.isVisible(); ++i) PressKey(dialog, Qt::Key_Escape);
        });
        const QString chosen = ToQString(utils_->ShowSelectionGridAndCalculateCoordinates(
            u"Codes", list, selected, target, nullptr, typed));
        EXPECT_TRUE(user.HasActed());
        EXPECT_TRUE(typed.empty());
        return chosen;
    }
};

TEST_F(SelectGridFormTest, TypedCodesAreTickedAsTheirCommaIsReleasedOrTheNextKeyPressed) {
    Chosen([](const Seen& seen) {
        QWindow* const window = seen.dialog.windowHandle();
        seen.Type("A");
        QTest::keyPress(window, ',');
        EXPECT_EQ(seen.Ticked(), "");
        QTest::keyRelease(window, ',');
        EXPECT_EQ(seen.Ticked(), "A");
        seen.Type("C");
        QTest::keyPress(window, ',');
        QTest::keyPress(window, 'x');
        EXPECT_EQ(seen.Ticked(), "A,C");
        EXPECT_EQ(MessageOf([&] { QTest::keyRelease(window, ','); }), "");
        EXPECT_EQ(seen.box.text(), "A,C,x");
    });
}

TEST_F(SelectGridFormTest, TheBoxIsEditedBehindWhatTheHostsUserTypedAndWhereItWasLeft) {
    const auto edits = [](const Seen& seen) {
        seen.Type("X");
        EXPECT_EQ(MessageOf([&] { seen.Press(Qt::Key_Tab); }), "'QX' is not a valid entry.");
        EXPECT_EQ(seen.box.text(), "A,QX");
        seen.Type("C");  // replaces QX, which is selected
        seen.Press(Qt::Key_Tab);
        seen.Press(Qt::Key_Backtab);
        seen.Type(",D,");
        EXPECT_EQ(seen.Ticked(), "A,C,D");
        seen.Press(Qt::CTRL | Qt::Key_A);
        seen.Press(Qt::Key_Delete);
        seen.Press(Qt::Key_Return);
    };
    EXPECT_EQ(Chosen(edits, kList, "A", u"Q"), "");
}

TEST_F(SelectGridFormTest, EntriesAreTickedByTheMouseAndBySpace) {
    const auto tick = [](const Seen& seen) {
        QWindow* const window = seen.dialog.windowHandle();
        seen.ClickEntry(3);
        seen.ClickEntry(5);
        seen.Press(Qt::Key_Left);
        seen.Press(Qt::Key_Space);
        // A press released elsewhere ticks nothing, a double click ticks twice, a blank cell
        // nothing.
        QTest::mousePress(window, Qt::LeftButton, {}, seen.PlaceOf(2));
        QTest::mouseRelease(window, Qt::LeftButton, {}, seen.PlaceOf(3));
        seen.ClickEntry(2);
        QTest::mouseDClick(window, Qt::LeftButton, {}, seen.PlaceOf(2));
        seen.ClickEntry(6);
        seen.ClickEntry(3);
        seen.Press(Qt::Key_Return);
    };
    EXPECT_EQ(Chosen(tick, kList + ":E\tAfter a blank\t0:"), "D,C,A");
}

TEST_F(SelectGridFormTest, KeysMoveTheVisibleCurrentEntry) {
    const auto move = [](const Seen& seen) {
        const int bands = seen.grid.viewport()->height() / seen.grid.rowHeight(0);
        const std::pair<Qt::Key, int> moves[] = {
            {Qt::Key_Right, 2}, {Qt::Key_Down, 12},
            {Qt::Key_Left, 11}, {Qt::Key_End, 1001},
            {Qt::Key_Up, 991},  {Qt::Key_Home, 1},
            {Qt::Key_Right, 2}, {Qt::Key_PageDown, 2 + 10 * bands},
            {Qt::Key_PageUp, 2}};
        seen.Press(Qt::Key_Tab);
        for (const auto& [key, entry] : moves) {
            seen.Press(key);
            EXPECT_EQ(seen.grid.currentIndex(), seen.IndexOf(entry)) << key;
            const QRect shown = seen.grid.visualRect(seen.IndexOf(entry));
            EXPECT_TRUE(seen.grid.viewport()->rect().contains(shown)) << key;
        }
    };
    Chosen(move, Numbered(1000));
}

TEST_F(SelectGridFormTest, EveryWayOutOfTheBoxTakesOrKeepsOrRefuses) {
    const struct {
        const char* way;
        Acts act;
        bool takes, refusesBadCodes;
    } cases[] = {
        {"Tab", Press({Qt::Key_Tab}), false, true},
        {"an entry", [](const Seen& seen) { seen.ClickEntry(2); }, false, true},
        {"Enter", Press({Qt::Key_Return}), true, true},
        {"Enter in the grid", Press({Qt::Key_Tab, Qt::Key_Return}), true, true},
        {"Enter on OK", Press({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}), true, true},
        {"OK", ClickOn("cmdOK"), true, true},
        {"Backtab", Press({Qt::Key_Backtab}), false, true},
        {"Down", Press({Qt::Key_Down}), false, true},
        {"the find bar", [](const Seen& seen) { seen.Press(Qt::CTRL | Qt::Key_F); }, false, true},
        {"F3", Press({Qt::Key_F3}), false, true},
        {"Cancel", ClickOn("cmdExit"), false, false},
        {"Escape", Press({Qt::Key_Escape}), false, false},
        {"close box", [](const Seen& seen) { CloseRequest(seen.dialog); }, false, false},
        {"header", [](const Seen& seen) { Click(seen.dialog, seen.Header()); }, true, true},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.way);
        const auto change = [&](const Seen& seen) { seen.Type(",C,"), row.act(seen); };
        EXPECT_EQ(Chosen(change, kList, "A"), row.takes ? "A,C" : "A");
        EXPECT_EQ(Chosen(row.act, kList, "A"), row.takes ? "CANCEL" : "A");
        Chosen([&](const Seen& seen) {
            seen.Type("ZZ");
            const QString message = MessageOf([&] { row.act(seen); });
            EXPECT_EQ(message.contains("'ZZ' is not a valid entry."), row.refusesBadCodes);
            EXPECT_EQ(seen.dialog.isVisible() && seen.box.hasFocus(), row.refusesBadCodes);
            EXPECT_TRUE(!row.refusesBadCodes || seen.box.selectedText() == "ZZ");
        });
    }
}

TEST_F(SelectGridFormTest, ARefusedOkReturnsToTheWrongCodeAndSaysSoOnce) {
    const std::pair<const char*, Acts> ways[] = {
        {"Enter in the grid", Press({Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return})},
        {"Enter on OK", Press({Qt::Key_Tab, Qt::Key_Space, Qt::Key_Tab, Qt::Key_Return})}};
    for (const auto& [way, act] : ways) {
        SCOPED_TRACE(way);
        // Codes with a "|" can be ticked but not accepted.
        Chosen(
            [&, act = act](const Seen& seen) {
                EXPECT_EQ(MessageOf([&] { act(seen); }), "Invalid Entry");
                EXPECT_EQ(seen.box.selectedText(), "A|B");
                EXPECT_TRUE(seen.box.hasFocus());
            },
            "H:A|B\tAlpha\t0:");
    }
}

TEST_F(SelectGridFormTest, AMissIsRedAndTheBarIsClosedByEscape) {
    const auto find = [](const Seen& seen) {
        auto& word = Find<QLineEdit>(seen.dialog, "txtFind");
        auto& told = Find<QLabel>(seen.dialog, "lblFind");
        const QColor ordinary = word.palette().color(QPalette::Text);
        const QRect before = seen.grid.geometry();
        seen.Press(Qt::Key_Tab);
        seen.Type("delt");
        EXPECT_EQ(word.text() + ", " + told.text(), "delt, 1 of 1");
        EXPECT_EQ(seen.grid.geometry(), before);
        seen.Type("x");
        EXPECT_EQ(told.text(), "Not found");
        EXPECT_GT(word.palette().color(QPalette::Text).red(), ordinary.red() + 100);
        seen.Press(Qt::Key_Return);
        EXPECT_EQ(seen.Ticked(), "");
        seen.Press(Qt::Key_Backspace);
        EXPECT_EQ(word.palette().color(QPalette::Text), ordinary);
        // Wherever the keyboard is, Escape closes the bar before the dialog.
        seen.ClickEntry(2);
        seen.Press(Qt::Key_Escape);
        EXPECT_FALSE(word.isVisible());
        EXPECT_TRUE(seen.dialog.isVisible() && seen.grid.hasFocus());
    };
    Chosen(find);
}

TEST_F(SelectGridFormTest, ChangesOfTheCurrentEntryAndOfTicksAreTold) {
    Chosen([](const Seen& seen) {
        QSignalSpy entries(&seen.grid, SIGNAL(CurrentEntryChanged()));
        QSignalSpy ticks(&seen.grid, SIGNAL(TicksChanged()));
        seen.Press(Qt::Key_Tab);
        seen.Press(Qt::Key_Right);
        EXPECT_EQ(std::pair(entries.count(), ticks.count()),
                  (std::pair<qsizetype, qsizetype>(1, 0)));
        seen.Press(Qt::Key_Space);
        EXPECT_EQ(std::pair(entries.count(), ticks.count()),
                  (std::pair<qsizetype, qsizetype>(1, 1)));
    });
}

TEST_F(SelectGridFormTest, AHugeChoiceIsKeptWhole) {
    const auto takeAll = [](const Seen& seen) {
        seen.ClickEntry(1);
        EXPECT_LT(seen.box.text().size(), 2000);
        seen.Press(Qt::Key_Right);
        seen.Press(Qt::Key_Space);
        seen.Press(Qt::Key_Return);
    };
    const QString chosen = Chosen(takeAll, Numbered(50'000));
    EXPECT_TRUE(chosen.startsWith("N2,N3,") && chosen.endsWith(",N49999,N50000"));
    EXPECT_EQ(chosen.count(','), 49'998);
}

/// Whether a part of a picture is coloured: "red", "blue" or neither.
QString ColourOf(const QImage& image) {
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QColor pixel = image.pixelColor(i % image.width(), i / image.width());
        if (pixel.red() > 200 && pixel.green() + pixel.blue() < 120) return "red";
        if (pixel.blue() > 200 && pixel.green() + pixel.red() < 90) return "blue";
    }
    return "";
}

/// Whether a picture shows a red line longer than any letter is wide.
bool HasRedLine(const QImage& image) {
    constexpr int kWiderThanALetter = 12;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0, length = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            length = pixel.red() > 150 && pixel.red() > 2 * pixel.green() ? length + 1 : 0;
            if (length > kWiderThanALetter) return true;
        }
    }
    return false;
}

TEST_F(SelectGridFormTest, FixedColoursHoldOnADarkDesktopToo) {
    const QPalette light = QApplication::palette();
    QPalette dark(QColor(50, 50, 50), QColor(30, 30, 30));
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    Chosen([](const Seen& seen) {
        EXPECT_EQ(seen.Header().grab().toImage().pixelColor(3, 3), QColor(250, 212, 135));
        for (const auto& [entry, colour] : {std::pair{1, "blue"}, {2, ""}, {3, "red"}}) {
            const QRect place = seen.grid.visualRect(seen.IndexOf(entry));
            const QImage image = seen.grid.viewport()->grab(place).toImage();
            EXPECT_EQ(image.pixelColor(2, image.height() - 4), QColor(235, 235, 235));
            EXPECT_EQ(ColourOf(image), colour) << entry;
            EXPECT_EQ(HasRedLine(image), entry == 3) << "deleted entries are struck out";
        }
    });
    QApplication::setPalette(light);
}

TEST_F(SelectGridFormTest, ToolTipsShowCheckDescriptionAndChoice) {
    const auto look = [](const Seen& seen) {
        const QRect entry = seen.grid.visualRect(seen.IndexOf(3));
        QWidget& cells = *seen.grid.viewport();
        const struct {
            QWidget& part;
            int y;
            QString toolTip;
        } rows[] = {{cells, entry.top() + 4, " SELECTED "},
                    {cells, entry.bottom() - 4, " <b>Beta</b> "},
                    {seen.Header(), 4, "1 selected\nB  <b>Beta</b>"}};
        for (const auto& [part, y, toolTip] : rows) {
            const QPoint place(entry.center().x(), y);
            QHelpEvent help(QEvent::ToolTip, place, part.mapToGlobal(place));
            QApplication::sendEvent(&part, &help);
            QTextDocument shown;
            shown.setHtml(QToolTip::text());
            EXPECT_EQ(shown.toPlainText(), toolTip);
        }
    };
    Chosen(look, kList, "B");
}

TEST_F(SelectGridFormTest, OpensBesideAButtonWhollyOnTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint corners[] = {screen.topLeft(), screen.center(),
                              screen.bottomRight() - QPoint(80, 30)};
    for (const QPoint& corner : corners) {
        const auto host = OpenHostWindow(QRect(corner, QSize(200, 100)).translated(-40, -20));
        QPushButton button(host.get());
        button.setGeometry(40, 20, 80, 30);
        const QRect target(button.mapToGlobal(QPoint()), button.size());
        const auto look = [&](const Seen& seen) {
            const QRect place = seen.dialog.frameGeometry();
            EXPECT_TRUE(screen.contains(place));
            EXPECT_FALSE(place.intersects(target));
            EXPECT_EQ(place.right(), std::max(target.right(), screen.left() + place.width() - 1));
        };
        Chosen(look, kList, "", u"", Beside(&button));
    }
}

TEST(PopupTargets, AreTheVisiblePartOfAWidgetOrCellUntilItIsGone) {
    auto view = std::make_unique<QTableView>();
    QStandardItemModel model(200, 2);
    view->setModel(&model);
    view->setGeometry(100, 100, 300, 200);
    view->show();
    const auto cell = Beside(view.get(), model.index(1, 1));
    const auto whole = Beside(view.get());
    EXPECT_EQ(whole->Place(), (Rect{1500, 1500, 4500, 3000}));
    const auto place = Beside(QRect(100, 100, 300, 200));  // of a host without widgets
    EXPECT_EQ(place->Place(), whole->Place());
    EXPECT_EQ(place->Screen(), whole->Screen());
    EXPECT_GT(cell->Place().top, 1500);
    EXPECT_LE(cell->Place().Right(), 6000);
    model.removeRows(0, 10);
    EXPECT_FALSE(cell->Exists());
    EXPECT_EQ(FaultOf([&] { cell->Place(); }), 91);
    view.reset();
    EXPECT_FALSE(whole->Exists());
    EXPECT_EQ(FaultOf([&] { whole->Screen(); }), 91);
    EXPECT_EQ(Beside(nullptr), nullptr);
}

}  // namespace
}  // namespace halvek
