// SPDX-License-Identifier: MIT
#include "tests/FakeServices.h"
#include "tests/FaultOf.h"
#include "tests/HostWindow.h"

#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace halvek {
namespace {

constexpr auto kInt32 = std::numeric_limits<std::int32_t>{};

std::u16string Letters(int count) {
    return std::u16string(static_cast<std::size_t>(count), u'x');
}

/// A prompt of short lines.
std::u16string Lines(int count) {
    std::u16string text = u"line";
    for (int i = 1; i < count; ++i) text += u"\r\nline";
    return text;
}

class MessageBoxTest : public ::testing::Test {
  protected:
    MessageBox Make(MessageBoxRequest request) { return {std::move(request), session_, desktop_}; }
    MessageBox Make(ButtonsChoice buttons, std::int32_t closeAfter = 0) {
        return Make({u"Prompt", buttons, mbNoIcon, u"Title", mbWhite, mb9, false, closeAfter});
    }

    /// In 10 points, where a character is 100 twips wide and a line 200 high.
    MessageBoxLayout LayOut(std::u16string prompt, ButtonsChoice buttons = mbOkOnly,
                            bool bold = false) {
        return Make({std::move(prompt), buttons, mbNoIcon, u"", mbWhite, mb10, bold}).Layout();
    }

    FakeServices session_;
    ScriptedPlatform desktop_;
};

// Layout

TEST_F(MessageBoxTest, WidthsFollowTheWidestLine) {
    const std::tuple<std::u16string, bool, Size, std::int32_t> rows[] = {
        {Letters(35), false, {4600, 200}, 5400},
        {Letters(36), false, {4200, 200}, 5420},
        {Letters(36), true, {7600, 200}, 8820},
        {Letters(60) + u"\n" + Letters(9), false, {6600, 400}, 7820},
        {Letters(181), false, {18700, 200}, 19920},
        {Letters(182), false, {9000, 700}, 10220},      // wider than the screen, so it folds
        {Letters(9000), false, {16000, 12100}, 17220},  // too wide and too high
        {u"head\r\n" + Letters(41), true, {4220, 500}, 5440},
        {u"head\r\n" + Letters(158), false, {15920, 500}, 17140},
        {u"head\r\n" + Letters(161), false, {16000, 700}, 17220},           // folds
        {Lines(167) + u"\r\n" + Letters(100), false, {4600, 34300}, 5400},  // after 1000
    };
    desktop_.SetScreenSize({20000, 11520});
    for (const auto& [prompt, bold, label, form] : rows) {
        const MessageBoxLayout layout = LayOut(prompt, mbOkOnly, bold);
        EXPECT_EQ((Size{layout.label.width, layout.label.height}), label) << prompt.size();
        EXPECT_EQ(layout.form.width, form) << prompt.size();
    }
}

TEST_F(MessageBoxTest, TheFormsHeightHasTwoLimitsInTheirOrder) {
    const std::u16string prompt = Lines(30);
    desktop_.SetFrameSize({0, 0});
    const std::int32_t bare = LayOut(prompt).buttonFrame.Bottom();
    const std::int32_t rows[][2] = {{8869, 8869}, {8871, 8870}, {9300, 8870},
                                    {9301, 8851}, {9310, 8860}, {9500, 8870}};
    for (const auto& [computed, form] : rows) {
        desktop_.SetFrameSize({0, computed - bare});
        const MessageBoxLayout layout = LayOut(prompt);
        EXPECT_EQ(layout.form.height, form) << computed;
        EXPECT_EQ(layout.buttonFrame.Bottom(), layout.inner.height) << computed;
    }
}

TEST_F(MessageBoxTest, ScrollButtonsShowOnlyForTextThatIsTooHigh) {
    for (int lines = 1; lines < 60; ++lines) {
        EXPECT_EQ(LayOut(Lines(lines)).canScroll, lines >= 35) << lines;
        EXPECT_EQ(LayOut(Lines(lines), mbNoButtons).canScroll, lines >= 39) << lines;
    }
}

TEST_F(MessageBoxTest, ButtonsStandInTheMiddleOfTheirFrame) {
    const std::pair<ButtonsChoice, std::array<std::int32_t, 3>> rows[] = {
        {mbOkOnly, {5260}}, {mbYesNo, {4570, 5950}}, {mbYesNoHelp, {3880, 5260, 6640}}};
    for (const auto& [buttons, lefts] : rows) {
        const MessageBoxLayout layout = LayOut(Letters(100), buttons);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(layout.buttons[i].value_or(Rect{}).left, lefts[i]) << buttons;
        }
    }
}

// Buttons and the close box; stories press every button of every set

TEST_F(MessageBoxTest, HasNoButtonAndNoCloseBoxButThoseOfItsSet) {
    MessageBox box = Make(mbYesNo);
    for (const int index : {-1, 2, 3}) EXPECT_EQ(FaultOf([&] { box.Press(index); }), 9);
    for (const auto button : {kNotAnswered, mbOK}) {
        EXPECT_EQ(FaultOf([&] { box.Press(button); }), 5);
    }
    box.Close();
    EXPECT_TRUE(box.IsOpen());
    box.Abandon();
    EXPECT_EQ(box.ReturnedValue(), kNotAnswered);
}

// Countdown

TEST_F(MessageBoxTest, ACountdownOfNEndsAtTheNthTick) {
    MessageBox box = Make(mbYesNo, 2);
    EXPECT_EQ(box.Caption(), u"Title");
    box.Tick();
    EXPECT_EQ(box.Caption(), u"Title          00:00:00 / 00:00:02");
    EXPECT_TRUE(box.IsOpen() && box.CountdownRunning());
    box.Tick();
    box.Tick();
    EXPECT_EQ(box.Caption(), u"Title          00:00:01 / 00:00:02");
    box.Press(0);
    EXPECT_FALSE(box.IsOpen() || box.CountdownRunning());
    EXPECT_EQ(static_cast<std::int32_t>(box.ReturnedValue()), 99);
    EXPECT_EQ(box.ReturnedValue(), mbOK);  // reading the answer clears it
}

TEST_F(MessageBoxTest, ACountdownTakesAnyNumberOfSeconds) {
    const std::pair<std::int32_t, std::u16string> rows[] = {
        {kInt32.min(), u""},
        {0, u""},
        {2'147'483'639, u"          00:00:00 / 596523:13:59"},
        {kInt32.max(), u"          00:00:00 / 596523:14:00"},
    };
    for (const auto& [seconds, clock] : rows) {
        MessageBox box = Make(mbOkOnly, seconds);
        box.Tick();
        EXPECT_EQ(box.Caption(), u"Title" + clock);
        EXPECT_TRUE(box.IsOpen());
    }
}

// What the box shows

TEST_F(MessageBoxTest, ChoicesOutOfRangeAreReplaced) {
    const auto make = [&](std::int32_t icon, std::int32_t background, std::int32_t fontSize) {
        return Make({u"", mbOkOnly, static_cast<IconChoice>(icon), u"",
                     static_cast<ColorChoice>(background), static_cast<FontSizeChoice>(fontSize)});
    };
    const std::int32_t fonts[][2] = {{mb8, 8}, {mb6, 6}, {mb14, 14}, {0, 9}, {10, 9}, {-1, 9}};
    for (const auto& [choice, points] : fonts) {
        EXPECT_EQ(make(mbNoIcon, mbWhite, choice).Font(), (FontSpec{u"", points})) << choice;
    }
    EXPECT_EQ(make(mbNoIcon, mbWhite, mb5).Font(), (FontSpec{u"Courier New", 9}));
    EXPECT_EQ(make(8, mbWhite, mb9).Picture(), 8);
    for (const int icon : {0, 9, -1}) EXPECT_EQ(make(icon, mbWhite, mb9).Picture(), 0) << icon;
    const std::pair<std::int32_t, Color> backgrounds[] = {
        {mbGray, kButtonFace}, {mbSkinColor, 0x112233}, {0, kWhite}, {4, kWhite}};
    for (const auto& [scheme, color] : backgrounds) {
        EXPECT_EQ(make(mbNoIcon, scheme, mb9).Colors().background, color) << scheme;
    }
    EXPECT_EQ(make(mbNoIcon, mbSkinColor, mb9).Colors().text, 0x445566);
}

TEST_F(MessageBoxTest, RefreshesItsOwnerAtTheEnd) {
    const auto owner = std::make_shared<HostWindow>();
    int refreshes = 0;
    for (const bool isThere : {true, false}) {
        for (const bool byUser : {true, false}) {
            MessageBox box =
                Make({u"", mbYesNoCancel, mbNoIcon, u"", mbWhite, mb9, false, 0, owner});
            owner->exists = isThere;
            EXPECT_EQ(box.CentredOnOwner().has_value(), isThere);
            byUser ? box.Close() : box.Abandon();
            EXPECT_EQ(owner->refreshes, refreshes += isThere);
            EXPECT_EQ(owner.use_count(), 1);
        }
    }
}

}  // namespace
}  // namespace halvek
