// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"

namespace halvek {
namespace {

using ColorPaletteFormTest = FormTest;

TEST_F(ColorPaletteFormTest, EveryCellStandsOutFromAnyFrame) {
    utils_->InitPrefs(StringArray(1, {u"7", u"7", u"0", u"0"}), 0, 0, 0, 0);
    const User user([](QDialog& dialog) {
        QWidget& cell = Find(dialog, "txtPalette_2");
        EXPECT_EQ(cell.toolTip(), "black, 2 (#070000)");
        for (const QColor frame : {QColor(7, 0, 0), QColor(Qt::white)}) {  // the first as the cell
            dialog.setPalette(QPalette(Qt::gray, frame));
            const QColor outline = cell.grab().toImage().pixelColor(4, cell.height() / 2);
            EXPECT_GT(std::abs(outline.lightness() - frame.lightness()), 80);
        }
        QAccessible::queryAccessibleInterface(&cell)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
    });
    EXPECT_EQ(utils_->ShowColor(), u"7\t2");
}

}  // namespace
}  // namespace halvek
