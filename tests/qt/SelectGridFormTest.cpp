// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtText.h>

namespace halvek {
namespace {

const QString kList = QStringLiteral("H:A\tAlpha\t0:B\t<b>Beta</b>\t1:C\tGamma\t0:D\tDelta\t0:");

/// The dialog as its user sees it.
struct Seen {
    QDialog& dialog;
    QLineEdit& box = Find<QLineEdit>(dialog, "txtSelect");
    QTableView& grid = Find<QTableView>(dialog, "grdSelection");

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
        return ToQString(utils_->ShowSelection(u"Codes", list, selected));
    }
};

TEST_F(SelectGridFormTest, AMissIsRedAndCoversNoEntry) {
    Chosen([](const Seen& seen) {
        auto& word = Find<QLineEdit>(seen.dialog, "txtFind");
        const auto isRed = [&] { return word.palette().color(QPalette::Text).red() > 100; };
        const QRect before = seen.grid.geometry();
        PressKey(seen.dialog, Qt::Key_Tab);
        Type(seen.dialog, "delt");
        EXPECT_EQ(seen.grid.geometry(), before);
        EXPECT_FALSE(isRed());
        Type(seen.dialog, "x");
        EXPECT_TRUE(isRed());
        PressKey(seen.dialog, Qt::Key_Backspace);
        EXPECT_FALSE(isRed());
    });
}

TEST_F(SelectGridFormTest, APressThatIsReleasedElsewhereTicksNothing) {
    const auto slip = [](const Seen& seen) {
        QTest::mousePress(seen.dialog.windowHandle(), Qt::LeftButton, {}, seen.PlaceOf(2));
        QTest::mouseRelease(seen.dialog.windowHandle(), Qt::LeftButton, {}, seen.PlaceOf(3));
        seen.ClickEntry(4);
        PressKey(seen.dialog, Qt::Key_Return);
    };
    EXPECT_EQ(Chosen(slip), "C");
}

TEST_F(SelectGridFormTest, AHugeChoiceIsKeptWhole) {
    QString list("H:");
    for (int i = 1; i <= 50'000; ++i) list += QString("N%1\tName %1\t0:").arg(i);
    const auto takeAll = [](const Seen& seen) {
        seen.ClickEntry(1);
        EXPECT_LT(seen.box.text().size(), 2000);
        PressKey(seen.dialog, Qt::Key_Right);
        PressKey(seen.dialog, Qt::Key_Space);
        PressKey(seen.dialog, Qt::Key_Return);
    };
    const QString chosen = Chosen(takeAll, list);
    EXPECT_TRUE(chosen.startsWith("N2,N3,") && chosen.endsWith(",N49999,N50000"));
    EXPECT_EQ(chosen.count(','), 49'998);
}

TEST_F(SelectGridFormTest, AHugePasteIsRefusedWhole) {
    QGuiApplication::clipboard()->setText("A,D" + QString(5'000'000, 'x'));
    const auto paste = [](const Seen& seen) {
        Type(seen.dialog, "C,");
        PressKey(seen.dialog, Qt::CTRL | Qt::Key_V);
        EXPECT_EQ(seen.box.text(), "C,");
        Type(seen.dialog, "D");
        PressKey(seen.dialog, Qt::Key_Return);
    };
    EXPECT_EQ(Chosen(paste), "C,D");
    QGuiApplication::clipboard()->clear();
}

/// The longest red part of a row of a picture.
int LongestRed(const QImage& image) {
    int longest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0, length = 0; x < image.width(); ++x) {
            const QColor point = image.pixelColor(x, y);
            const bool isRed =
                point.red() > 150 && point.red() > 2 * point.green() && point.blue() < 120;
            length = isRed ? length + 1 : 0;
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
            EXPECT_EQ(LongestRed(image) > (entry == 3 ? kWiderThanALetter : 0), entry == 3)
                << "deleted entries are red and struck out";
        }
    });
    QApplication::setPalette(light);
}

TEST_F(SelectGridFormTest, ToolTipsShowCheckDescriptionAndChoice) {
    const auto toolTipAt = [](QWidget& part, QPoint place) {
        QHelpEvent help(QEvent::ToolTip, place, part.mapToGlobal(place));
        QApplication::sendEvent(&part, &help);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    };
    const auto look = [&](const Seen& seen) {
        const QRect entry = seen.grid.visualRect(seen.IndexOf(3));
        QWidget& cells = *seen.grid.viewport();
        EXPECT_EQ(toolTipAt(cells, entry.topLeft() + QPoint(9, 4)), " SELECTED ");
        EXPECT_EQ(toolTipAt(cells, entry.bottomLeft() + QPoint(9, -4)), " <b>Beta</b> ");
        EXPECT_EQ(toolTipAt(seen.Header(), QPoint(9, 4)), "1 selected\nB  <b>Beta</b>");
    };
    Chosen(look, kList, "B");
}

}  // namespace
}  // namespace halvek
