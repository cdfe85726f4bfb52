// SPDX-License-Identifier: MIT
#include <halvekutils/scripted/ScriptedPlatform.h>
#include <halvekutils/selection/SelectCell.h>
#include <halvekutils/selection/SelectGridLayout.h>

#include <gtest/gtest.h>

namespace halvek {
namespace {

constexpr Size kScreen = {20490, 11520};  // 1366 by 768 pixels

SelectGridLayout LayOut(std::int32_t longestCode, std::int32_t rows, Size screen = kScreen) {
    const ScriptedPlatform meter;
    return LayOutSelectGrid({longestCode, rows}, meter, screen, {30, 450});
}

TEST(SelectGridLayout, TenColumnsOfEightLettersFitOnASmallScreen) {
    for (const std::int32_t length : {0, 1, 8, 30, 1'000'000}) {
        const SelectGridLayout layout = LayOut(length, 30'000);
        EXPECT_FALSE(layout.scrollsAcross) << length;
        EXPECT_GE(layout.columnWidth, 8 * 80) << length;
        EXPECT_LE(10 * layout.columnWidth + 300, layout.grid.width) << length;
    }
    EXPECT_LT(LayOut(1, 3).columnWidth, LayOut(20, 3).columnWidth);
    const SelectGridLayout narrow = LayOut(30, 3, {6000, 11520});
    EXPECT_TRUE(narrow.scrollsAcross);  // rather than hiding codes
    EXPECT_GE(narrow.columnWidth, 8 * 80);
}

TEST(SelectGridLayout, ColumnsGrowToTheLongestNameAsFarAsTheScreenGoes) {
    const ScriptedPlatform meter;
    const std::u16string name(24, u'n');
    const std::int32_t width = meter.TextWidth(name, DescriptionFont());
    SelectGridContent content{.longestCodeLength = 3, .rowCount = 3, .columns = 5};
    const auto layOut = [&](std::int32_t screen) {
        return LayOutSelectGrid(content, meter, {screen, 11520}, {30, 450});
    };
    const SelectGridLayout bare = layOut(40'000);
    EXPECT_GT(bare.columnWidth, meter.TextWidth(kAllCodesName, DescriptionFont()) + 150);
    content.longestDescriptions = {u"short", name};
    const SelectGridLayout wide = layOut(40'000);
    EXPECT_GT(wide.columnWidth, width + 150);
    EXPECT_EQ(wide.inner.width - bare.inner.width, 5 * (wide.columnWidth - bare.columnWidth));
    EXPECT_LT(layOut(7000).columnWidth, width);
    EXPECT_FALSE(layOut(7000).scrollsAcross);
    content.findBarWidth = 20'000;  // has its room beside the buttons
    EXPECT_GE(layOut(40'000).find.width, 20'000 - content.columns);
    EXPECT_LT(layOut(40'000).find.Right(), layOut(40'000).ok.left);
}

TEST(SelectGridLayout, TheHeightFollowsTheBands) {
    const SelectGridLayout one = LayOut(5, 3);
    const std::int32_t band = 2 * one.codeHeight + one.descriptionHeight;
    EXPECT_EQ(LayOut(5, 9).form.height - one.form.height, 2 * band);
    EXPECT_FALSE(LayOut(5, 9).scrollsDown);
    EXPECT_EQ(LayOut(5, 0).form, one.form);  // no band: an empty one keeps the dialog in shape
    const SelectGridLayout many = LayOut(5, 30'000'000);
    EXPECT_TRUE(many.scrollsDown);
    EXPECT_EQ((many.grid.height - one.grid.height) % band, 0);
    EXPECT_GT(many.form.height + band, kScreen.height);
}

}  // namespace
}  // namespace halvek
