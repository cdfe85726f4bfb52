// SPDX-License-Identifier: MIT
#include "tests/FakeServices.h"
#include "tests/FaultOf.h"

#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace halvek {
namespace {

constexpr int kEnter = 13;
constexpr int kEscape = 27;
constexpr auto kInt32 = std::numeric_limits<std::int32_t>{};

class FakeOwner : public OwnerForm {
  public:
    std::int32_t Left() const override { return 1000; }
    std::int32_t Top() const override { return -500; }
    std::int32_t Width() const override { return 9001; }
    std::int32_t Height() const override { return 4001; }
    bool Exists() const override { return exists; }
    void Refresh() override { ++refreshes; }

    bool exists = true;
    int refreshes = 0;
};

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

    /// The answer of a box after these acts; absent while it is open.
    std::optional<MbMsgBoxResult> AnswerAfter(ButtonsChoice buttons,
                                              const std::function<void(MessageBox&)>& acts) {
        MessageBox box = Make(buttons, 5);
        acts(box);
        if (box.IsOpen()) return std::nullopt;
        return box.ReturnedValue();
    }

    FakeServices session_;
    ScriptedPlatform desktop_;
};

// Layout

TEST_F(MessageBoxTest, WidthsFollowTheWidestLine) {
    const struct {
        std::u16string prompt;
        bool bold;
        Size label;
        std::int32_t form;
    } rows[] = {
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
    for (const auto& row : rows) {
        const MessageBoxLayout layout = LayOut(row.prompt, mbOkOnly, row.bold);
        EXPECT_EQ((Size{layout.label.width, layout.label.height}), row.label) << row.prompt.size();
        EXPECT_EQ(layout.form.width, row.form) << row.prompt.size();
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

TEST_F(MessageBoxTest, EveryLineCanBeReadOnEveryScreen) {
    std::vector<std::u16string> prompts = {u"", Letters(500), Letters(9000), Letters(100'000)};
    for (int lines = 2; lines < 60; ++lines) {
        prompts.push_back(Lines(lines));
        prompts.push_back(Lines(lines / 2 + 1) + u"\r\n" + Letters(170 * (lines / 2)));
    }
    for (const Size screen : {Size{20490, 11520}, Size{12000, 9000}, Size{9600, 3000}}) {
        desktop_.SetScreenSize(screen);
        for (std::size_t i = 0; i < 2 * prompts.size(); ++i) {
            const std::u16string& prompt = prompts[i / 2];
            const ButtonsChoice buttons = i % 2 == 0 ? mbYesNo : mbNoButtons;
            SCOPED_TRACE(std::to_string(screen.height) + " " + std::to_string(prompt.size()));
            MessageBox box = Make({prompt, buttons, mbNoIcon, u""});
            const MessageBoxLayout& layout = box.Layout();
            EXPECT_LE(layout.form.width, screen.width);
            EXPECT_LE(layout.form.height, screen.height);
            const std::int32_t bottom =
                buttons == mbYesNo ? layout.buttonFrame.top : layout.inner.height;
            const std::int32_t space = std::min(layout.messageFrame.Bottom(), bottom) -
                                       layout.messageFrame.top - layout.label.top;
            const std::int32_t text =
                desktop_.WrappedHeight(prompt, box.Font(), layout.label.width);
            if (layout.canScroll) box.ScrollBy(kInt32.max());
            EXPECT_GE(layout.label.top, 0);
            EXPECT_EQ(box.ScrollOffset(), std::min(space - text, 0));
        }
    }
}

TEST_F(MessageBoxTest, ScrollingStopsAtBothEnds) {
    MessageBox box = Make({Lines(100), mbOkOnly, mbNoIcon, u""});
    const std::int32_t range = box.Layout().scrollRange;
    int changes = 0;
    box.Changed = [&] { ++changes; };
    const std::int32_t rows[][2] = {
        {-200, 0}, {range - 1, 1 - range}, {kInt32.max(), -range}, {kInt32.min(), 0}};
    for (const auto& [twips, offset] : rows) {
        box.ScrollBy(twips);
        EXPECT_EQ(box.ScrollOffset(), offset) << twips;
    }
    EXPECT_EQ(changes, 3);
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

// Buttons, keys and the close box

struct SetRow {
    ButtonsChoice set;
    std::vector<std::u16string> captions;
    std::vector<MbMsgBoxResult> results;
    std::optional<MbMsgBoxResult> closed;  ///< by the close box; absent where there is none
    bool escapeCloses;
};

const SetRow kSets[] = {
    {mbOkOnly, {u"OK"}, {mbOK}, mbOK, true},
    {mbOkCancel, {u"OK", u"Cancel"}, {mbOK, mbCancel}, mbCancel, true},
    {mbAbortRetryIgnore, {u"Abort", u"Retry", u"Ignore"}, {mbAbort, mbRetry, mbIgnore}, {}, false},
    {mbYesNoCancel, {u"Yes", u"No", u"Cancel"}, {mbYes, mbNo, mbCancel}, mbCancel, true},
    {mbYesNo, {u"Yes", u"No"}, {mbYes, mbNo}, {}, false},
    {mbRetryCancel, {u"Retry", u"Cancel"}, {mbRetry, mbCancel}, mbCancel, true},
    {mbSaveDontSave, {u"Save", u"Don't Save"}, {mbSave, mbDontSave}, {}, false},
    {mbNoButtons, {}, {}, mbOK, true},
    {mbYesHelp, {u"Yes", u"Help"}, {mbYes, mbHelp}, mbYes, false},
    {mbYesNoHelp, {u"Yes", u"No", u"Help"}, {mbYes, mbNo, mbHelp}, {}, false},
    {mbOkHelp, {u"OK", u"Help"}, {mbOK, mbHelp}, mbOK, false},
    {static_cast<ButtonsChoice>(-1), {u"OK"}, {mbOK}, mbOK, true},
};

TEST_F(MessageBoxTest, EverySetAnswersByItsButtonsItsCloseBoxAndItsKeys) {
    for (const SetRow& row : kSets) {
        SCOPED_TRACE(row.set);
        const MessageBox open = Make(row.set);
        EXPECT_EQ(open.HasCloseBox(), row.closed.has_value());
        for (int i = -1; i < 4; ++i) {
            const auto at = static_cast<std::size_t>(i);
            const bool shown = i >= 0 && at < row.captions.size();
            EXPECT_EQ(open.ButtonCaption(i), shown ? u"&" + row.captions[at] : u"");
            EXPECT_EQ(at < 3 && open.Layout().buttons[at].has_value(), shown);
            const auto pressThenAbandon = [&](MessageBox& box) {
                EXPECT_EQ(FaultOf([&] { box.Press(i); }), shown ? 0 : 9);
                box.Abandon();
            };
            EXPECT_EQ(AnswerAfter(row.set, pressThenAbandon),
                      shown ? row.results[at] : row.closed.value_or(kNotAnswered));
        }
        for (int value = kNotAnswered; value <= mbHelp + 1; ++value) {
            const auto result = static_cast<MbMsgBoxResult>(value);
            const bool shown = std::ranges::count(row.results, result) > 0;
            const auto press = [&](MessageBox& box) {
                EXPECT_EQ(FaultOf([&] { box.Press(result); }), shown ? 0 : 5) << value;
            };
            EXPECT_EQ(AnswerAfter(row.set, press), shown ? std::optional(result) : std::nullopt);
        }
        const auto closeThenPress = [&](MessageBox& box) {
            box.Close();
            if (!row.results.empty()) box.Press(0);
        };
        EXPECT_EQ(AnswerAfter(row.set, closeThenPress), row.closed ? row.closed : row.results[0]);
        const auto escape = [](MessageBox& box) {
            box.KeyDown(kEscape, MessageBox::kNoModifier);
            EXPECT_FALSE(box.CountdownRunning());
        };
        EXPECT_EQ(AnswerAfter(row.set, escape), row.escapeCloses ? row.closed : std::nullopt);
        const auto enter = [](MessageBox& box) {
            box.FormKeyPress('O');
            box.FormKeyPress(kEnter);
        };
        EXPECT_EQ(AnswerAfter(row.set, enter).has_value(), row.set == mbNoButtons);
    }
}

TEST_F(MessageBoxTest, AcceleratorsPressByTheLetterAlone) {
    std::vector<int> keys = {-1, 65536 + 'O', 65536 + 'Y', kInt32.max()};
    for (int key = 0; key < 300; ++key) keys.push_back(key);
    for (const SetRow& row : kSets) {
        for (const int key : keys) {
            for (unsigned modifiers = 0; modifiers < 8; ++modifiers) {
                if (key == kEscape || (key == 'C' && modifiers == MessageBox::kControl)) continue;
                std::optional<MbMsgBoxResult> expected;
                for (std::size_t i = row.captions.size(); i-- > 0;) {
                    if (row.captions[i][0] == key) expected = row.results[i];
                }
                const auto press = [&](MessageBox& box) {
                    const auto action = box.KeyDown(key, modifiers);
                    ASSERT_EQ(action == MessageBox::KeyAction::Handled, expected.has_value());
                    ASSERT_FALSE(box.CountdownRunning());
                };
                ASSERT_EQ(AnswerAfter(row.set, press), expected)
                    << row.set << " " << key << " " << modifiers;
            }
        }
    }
}

TEST_F(MessageBoxTest, ControlCCopiesAndNeverPresses) {
    const auto copy = [](MessageBox& box) {
        EXPECT_EQ(box.KeyDown('C', MessageBox::kControl), MessageBox::KeyAction::Copy);
        EXPECT_FALSE(box.CountdownRunning());
    };
    EXPECT_EQ(AnswerAfter(mbOkCancel, copy), std::nullopt);
    EXPECT_EQ(Make({u"Save R&D &amp; go?\r\nNow", mbSaveDontSave, mbNoIcon, u"A & B"}).CopyText(),
              u"A & B\r\n\r\nSave R&D &amp; go?\r\nNow\r\n\r\nSave   Don't Save");
    EXPECT_EQ(Make({u"Wait", mbNoButtons, mbNoIcon, u""}).CopyText(),
              u"Front Desk\r\n\r\nWait\r\n");
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

TEST_F(MessageBoxTest, AKeyStopsTheCountdownAndAnAnswerEndsIt) {
    for (const int key : {int{'Q'}, int{'N'}}) {
        const auto pressBetweenTicks = [&](MessageBox& box) {
            box.PressScroll(0);
            box.Tick();
            EXPECT_TRUE(box.CountdownRunning());
            box.KeyDown(key, MessageBox::kShift);
            for (int i = 0; i < 9; ++i) box.Tick();
            EXPECT_EQ(box.Caption(), u"Title          00:00:00 / 00:00:05");
        };
        EXPECT_EQ(AnswerAfter(mbYesNo, pressBetweenTicks),
                  key == 'N' ? std::optional(mbNo) : std::nullopt);
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
    const std::int32_t backgrounds[][2] = {{mbWhite, kWhite},
                                           {mbGray, kButtonFace},
                                           {mbSkinColor, 0x112233},
                                           {0, kWhite},
                                           {4, kWhite}};
    for (const auto& [scheme, color] : backgrounds) {
        EXPECT_EQ(make(mbNoIcon, scheme, mb9).Colors().background, color) << scheme;
    }
    EXPECT_EQ(make(mbNoIcon, mbSkinColor, mb9).Colors().text, 0x445566);
}

TEST_F(MessageBoxTest, ABoxIsCentredOnItsOwnerAndRefreshesItAtTheEnd) {
    const auto owner = std::make_shared<FakeOwner>();
    const auto make = [&] {
        return Make({u"", mbYesNoCancel, mbNoIcon, u"", mbWhite, mb9, false, 0, owner});
    };
    for (const bool byUser : {true, false}) {
        MessageBox box = make();
        const auto place = box.CentredOnOwner();
        ASSERT_TRUE(place.has_value());
        EXPECT_EQ(place->left + box.Layout().form.width / 2, 1000 + 4500);
        EXPECT_EQ(place->top + box.Layout().form.height / 2, -500 + 2000);
        owner->refreshes = 0;
        byUser ? box.Close() : box.Abandon();
        EXPECT_EQ(owner->refreshes, 1);
        EXPECT_EQ(owner.use_count(), 1);
    }
    MessageBox orphan = make();
    owner->exists = false;
    EXPECT_FALSE(orphan.CentredOnOwner().has_value());
    orphan.Close();
    EXPECT_EQ(owner->refreshes, 1);
}

}  // namespace
}  // namespace halvek
