// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtText.h>

#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QScreen>
#include <QTableView>
#include <QTextDocument>
#include <QToolTip>

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
};

class SelectGridFormTest : public FormTest {
  protected:
    using Acts = std::function<void(const Seen&)>;

    /// What the user's acts choose; a dialog that they leave open is closed with Escape.
    QString Chosen(const Acts& acts, const QString& list = kList, const QString& selected = {}) {
        const User user([&](QDialog& dialog) {
            acts({dialog});
            // The first one may close the find bar only.
            for (int i = 0; i < 2 && dialog.isVisible(); ++i) PressKey(dialog, Qt::Key_Escape);
        });
        const QString chosen = ToQString(utils_->ShowSelection(u"Codes", list, selected));
        EXPECT_TRUE(user.HasActed());
        return chosen;
    }
};

TEST_F(SelectGridFormTest, AMissIsRedAndCoversNoEntry) {
    Chosen([](const Seen& seen) {
        auto& word = Find<QLineEdit>(seen.dialog, "txtFind");
        const auto isRed = [&] { return word.palette().color(QPalette::Text).red() > 100; };
        const QRect before = seen.grid.geometry();
        seen.Press(Qt::Key_Tab);
        seen.Type("delt");
        EXPECT_EQ(seen.grid.geometry(), before);
        EXPECT_FALSE(isRed());
        seen.Type("x");
        EXPECT_TRUE(isRed());
        seen.Press(Qt::Key_Backspace);
        EXPECT_FALSE(isRed());
    });
}

TEST_F(SelectGridFormTest, APressThatIsReleasedElsewhereTicksNothing) {
    const auto slip = [](const Seen& seen) {
        QTest::mousePress(seen.dialog.windowHandle(), Qt::LeftButton, {}, seen.PlaceOf(2));
        QTest::mouseRelease(seen.dialog.windowHandle(), Qt::LeftButton, {}, seen.PlaceOf(3));
        seen.ClickEntry(4);
        seen.Press(Qt::Key_Return);
    };
    EXPECT_EQ(Chosen(slip), "C");
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

TEST_F(SelectGridFormTest, AHugePasteIsRefusedWhole) {
    QGuiApplication::clipboard()->setText("A,D" + QString(5'000'000, 'x'));
    const auto paste = [](const Seen& seen) {
        seen.Type("C,");
        seen.Press(Qt::CTRL | Qt::Key_V);
        EXPECT_EQ(seen.box.text(), "C,");
        seen.Type("D");
        seen.Press(Qt::Key_Return);
    };
    EXPECT_EQ(Chosen(paste), "C,D");
    QGuiApplication::clipboard()->clear();
}

bool IsRed(QColor point) {
    return point.red() > 150 && point.red() > 2 * point.green() && point.blue() < 120;
}
bool IsBlue(QColor point) {
    return point.blue() > 200 && point.green() + point.red() < 90;
}

/// The longest part of a row of a picture that is coloured so.
int LongestRun(const QImage& image, bool (*isSo)(QColor)) {
    int longest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0, length = 0; x < image.width(); ++x) {
            length = isSo(image.pixelColor(x, y)) ? length + 1 : 0;
            longest = std::max(longest, length);
        }
    }
    return longest;
}

TEST_F(SelectGridFormTest, FixedColoursHoldOnADarkDesktopToo) {
    const QPalette light = QApplication::palette();
    QPalette dark(QColor(50, 50, 50), QColor(30, 30, 30));
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    Chosen([](const Seen& seen) {
        EXPECT_EQ(seen.Header().grab().toImage().pixelColor(3, 3), QColor(250, 212, 135));
        constexpr int kWiderThanALetter = 12;
        for (const int entry : {1, 2, 3}) {
            const QRect place = seen.grid.visualRect(seen.IndexOf(entry));
            const QImage image = seen.grid.viewport()->grab(place).toImage();
            EXPECT_EQ(image.pixelColor(2, image.height() - 4), QColor(235, 235, 235));
            EXPECT_EQ(LongestRun(image, IsBlue) > 0, entry == 1) << entry;
            EXPECT_EQ(LongestRun(image, IsRed) > (entry == 3 ? kWiderThanALetter : 0), entry == 3)
                << "deleted entries are red and struck out";
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

}  // namespace
}  // namespace halvek
