// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtText.h>

#include <QAccessible>
#include <QScreen>

namespace halvek {
namespace {

struct ColorPaletteFormTest : FormTest {
    /// What the user's acts choose from the colours 1 to `count`.
    QString Chosen(int count, const User::Acts& acts) {
        StringArray colors(1, count + 2);
        for (int i = 1; i <= count; ++i) colors[i] = QString::number(i).toStdU16String();
        utils_->InitPrefs(colors, 0, 0, 0, 0);
        const User user(acts);
        return ToQString(utils_->ShowColor(11'500, 11'000, 11'500));
    }
};

TEST_F(ColorPaletteFormTest, KeysAndClicksChooseFromListsOfAnyLength) {
    const std::tuple<int, User::Acts, const char*> cases[] = {
        {20, Keys({Qt::Key_Down, Qt::Key_Right, Qt::Key_Return}), "8\t8"},
        {20, Keys({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Enter}), "2\t2"},
        {20, [](QDialog& dialog) { Click(dialog, Find(dialog, "txtPalette_9")); }, "9\t9"},
        {10'000, Keys({Qt::Key_End, Qt::Key_Home, Qt::Key_End, Qt::Key_Return}), "10000\t10000"},
        {10'000, CloseRequest, ""},
    };
    for (const auto& [count, acts, expected] : cases) EXPECT_EQ(Chosen(count, acts), expected);
}

TEST_F(ColorPaletteFormTest, EveryCellIsNamedAndStandsOutFromItsFrame) {
    Chosen(10'000, [&](QDialog& dialog) {
        EXPECT_TRUE(dialog.screen()->availableGeometry().contains(dialog.frameGeometry()));
        QWidget& cell = Find(dialog, "txtPalette_7");
        EXPECT_EQ(cell.pos(), QPoint(3, 43));
        auto* const accessible = QAccessible::queryAccessibleInterface(&cell);
        EXPECT_EQ(cell.toolTip(), "black, 7 (#070000)");
        EXPECT_EQ(accessible->text(QAccessible::Name), "black, 7 (#070000)");
        for (const QColor frame : {QColor(7, 0, 0), QColor(Qt::white)}) {  // the first as the cell
            dialog.setPalette(QPalette(Qt::gray, frame));
            const QColor outline = cell.grab().toImage().pixelColor(4, cell.height() / 2);
            EXPECT_GT(std::abs(outline.lightness() - frame.lightness()), 80);
        }
        accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    });
}

}  // namespace
}  // namespace halvek
