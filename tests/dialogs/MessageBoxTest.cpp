#include "tests/FakeServices.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
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

    FakeServices session_;
    ScriptedPlatform desktop_;
};

// Layout

TEST_F(MessageBoxTest, WidthsFollowTheWidestLine) {
    const std::u16string head = u"head\r\n", half = Letters(990) + u"\r\n";
    constexpr std::int32_t kWide = 1'000'000;
    const struct {
        std::int32_t screen;
        std::u16string prompt;
        bool bold;
        Size label;
        std::int32_t form;
    } rows[] = {
        {20000, u"", false, {4600, 200}, 5400},
        {20000, Letters(35), false, {4600, 200}, 5400},
        {20000, Letters(36), false, {4200, 200}, 5420},
        {20000, Letters(36), true, {7600, 200}, 8820},
        {20000, Letters(60) + u"\n" + Letters(9), false, {6600, 400}, 7820},
        {20000, Letters(181), false, {18700, 200}, 19920},
        {20000, Letters(182), false, {16000, 500}, 17220},  // would be wider than the screen
        {20000, Letters(148), true, {16000, 300}, 17220},
        {20000, head + Letters(40), false, {4600, 500}, 5400},
        {20000, head + Letters(41), true, {4220, 500}, 5440},
        {20000, head + Letters(158), false, {15920, 500}, 17140},
        {20000, head + Letters(159), false, {16000, 500}, 17220},
        {kWide, half + Letters(7), false, {99120, 500}, 100340},
        {kWide, half + Letters(2000), false, {99120, 500}, 100340},  // behind 1000 characters
        {kWide, head + Letters(993), false, {99420, 500}, 100640},
        {kWide, head + Letters(995), false, {99520, 500}, 100740},
    };
    for (const auto& row : rows) {
        desktop_.SetScreenSize({row.screen, 11520});
        const MessageBoxLayout layout = LayOut(row.prompt, mbOkOnly, row.bold);
        SCOPED_TRACE(ToUtf8(row.prompt.substr(0, 8)) + " " + std::to_string(row.prompt.size()));
        EXPECT_EQ(layout.label.width, row.label.width);
        EXPECT_EQ(layout.label.height, row.label.height);
        EXPECT_EQ(layout.form.width, row.form);
        EXPECT_EQ(layout.messageFrame.width, row.form - 800);
        EXPECT_EQ(layout.buttonFrame.width, row.form - 800);
        EXPECT_EQ(layout.buttonFrame.left, layout.messageFrame.left);
    }
}

TEST_F(MessageBoxTest, TheFormsHeightHasTwoLimitsInTheirOrder) {
    const std::u16string prompt = Lines(30);
    desktop_.SetFrameSize({0, 0});
    const std::int32_t bare = LayOut(prompt).buttonFrame.Bottom();
    const std::int32_t rows[][2] = {{8869, 8869}, {8870, 8870}, {8871, 8870},
                                    {9000, 8870}, {9300, 8870}, {9301, 8851},
                                    {9310, 8860}, {9320, 8870}, {9500, 8870}};
    for (const auto& [computed, form] : rows) {
        desktop_.SetFrameSize({0, computed - bare});
        const MessageBoxLayout layout = LayOut(prompt);
        EXPECT_EQ(layout.form.height, form) << computed;
        EXPECT_EQ(layout.inner.height, form - (computed - bare)) << computed;
        EXPECT_EQ(layout.buttonFrame.Bottom(), layout.inner.height) << computed;
    }
}

TEST_F(MessageBoxTest, ScrollButtonsShowOnlyForTextThatIsTooHigh) {
    const struct {
        std::u16string prompt;
        ButtonsChoice buttons;
        std::int32_t frameHeight;
        bool canScroll;
    } rows[] = {{u"", mbOkOnly, 800, false},
                {Lines(3), mbOkOnly, 800, false},
                {Lines(4), mbOkOnly, 990, false},
                {Lines(25), mbOkOnly, 5190, false},
                {Lines(26), mbOkOnly, 5990, false},
                {Lines(34), mbOkOnly, 7590, false},
                {Lines(35), mbOkOnly, 7790, true},
                {Lines(38), mbNoButtons, 8390, false},
                {Lines(39), mbNoButtons, 8590, true},
                {Lines(40), mbNoButtons, 8600, true},
                {Letters(4000), mbOkOnly, 5190, false},
                {u"\r\n" + Letters(6000), mbOkOnly, 800, true}};
    for (const auto& row : rows) {
        const MessageBoxLayout layout = LayOut(row.prompt, row.buttons);
        EXPECT_EQ(layout.canScroll, row.canScroll) << row.prompt.size();
        EXPECT_EQ(layout.messageFrame.height, row.frameHeight) << row.prompt.size();
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
        for (const std::u16string& prompt : prompts) {
            for (const ButtonsChoice buttons : {mbYesNo, mbNoButtons}) {
                SCOPED_TRACE(std::to_string(screen.height) + " " + std::to_string(prompt.size()));
                MessageBox box = Make({prompt, buttons, mbNoIcon, u""});
                const MessageBoxLayout& layout = box.Layout();
                EXPECT_LE(layout.form.width, screen.width);
                EXPECT_LE(layout.form.height, screen.height);
                const bool covered = buttons != mbNoButtons;
                const std::int32_t bottom =
                    std::min(layout.messageFrame.Bottom(),
                             covered ? layout.buttonFrame.top : layout.inner.height);
                const std::int32_t text =
                    desktop_.WrappedHeight(prompt, box.Font(), layout.label.width);
                if (layout.canScroll) box.ScrollBy(kInt32.max());
                const std::int32_t space = bottom - layout.messageFrame.top - layout.label.top;
                EXPECT_GE(layout.label.top, 0);
                EXPECT_EQ(box.ScrollOffset(), std::min(space - text, 0));
            }
        }
    }
}

TEST_F(MessageBoxTest, ScrollingStopsAtBothEnds) {
    MessageBox box = Make({Lines(100), mbOkOnly, mbNoIcon, u""});
    const std::int32_t range = box.Layout().scrollRange;
    int changes = 0;
    box.Changed = [&] { ++changes; };
    const std::int32_t rows[][2] = {{-200, 0},         {range - 1, 1 - range}, {200, -range},
                                    {200, -range},     {kInt32.max(), -range}, {-300, 300 - range},
                                    {kInt32.min(), 0}, {kInt32.max(), -range}, {0, -range}};
    for (const auto& [twips, offset] : rows) {
        box.ScrollBy(twips);
        EXPECT_EQ(box.ScrollOffset(), offset) << twips;
    }
    EXPECT_EQ(changes, 5);
    box.PressScroll(1);
    EXPECT_EQ(box.ScrollOffset(), 200 - range);
    box.PressScroll(0);
    EXPECT_EQ(box.ScrollOffset(), -range);
}

TEST_F(MessageBoxTest, ButtonsStandInTheMiddleOfTheirFrame) {
    const struct {
        int letters;
        ButtonsChoice buttons;
        std::array<std::int32_t, 3> lefts;
    } rows[] = {{1, mbOkOnly, {1650}},
                {1, mbYesNo, {960, 2340}},
                {1, mbYesNoHelp, {270, 1650, 3030}},
                {100, mbOkOnly, {4860}},
                {100, mbOkHelp, {4170, 5550}},
                {100, mbYesNoCancel, {3480, 4860, 6240}}};
    for (const auto& row : rows) {
        const MessageBoxLayout layout = LayOut(Letters(row.letters), row.buttons);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(layout.buttons[i].value_or(Rect{}).left, row.lefts[i]) << row.buttons;
        }
    }
}

// Buttons, keys and the close box

struct SetRow {
    ButtonsChoice set;
    std::vector<std::u16string_view> captions;
    std::vector<MbMsgBoxResult> results;
    std::optional<MbMsgBoxResult> closed;  ///< by the close box; absent where there is none
    bool escapeCloses;
};

const SetRow kSets[] = {
    {mbOkOnly, {u"&OK"}, {mbOK}, mbOK, true},
    {mbOkCancel, {u"&OK", u"&Cancel"}, {mbOK, mbCancel}, mbCancel, true},
    {mbAbortRetryIgnore,
     {u"&Abort", u"&Retry", u"&Ignore"},
     {mbAbort, mbRetry, mbIgnore},
     {},
     false},
    {mbYesNoCancel, {u"&Yes", u"&No", u"&Cancel"}, {mbYes, mbNo, mbCancel}, mbCancel, true},
    {mbYesNo, {u"&Yes", u"&No"}, {mbYes, mbNo}, {}, false},
    {mbRetryCancel, {u"&Retry", u"&Cancel"}, {mbRetry, mbCancel}, mbCancel, true},
    {mbSaveDontSave, {u"&Save", u"&Don't Save"}, {mbSave, mbDontSave}, {}, false},
    {mbNoButtons, {}, {}, mbOK, true},
    {mbYesHelp, {u"&Yes", u"&Help"}, {mbYes, mbHelp}, mbYes, false},
    {mbYesNoHelp, {u"&Yes", u"&No", u"&Help"}, {mbYes, mbNo, mbHelp}, {}, false},
    {mbOkHelp, {u"&OK", u"&Help"}, {mbOK, mbHelp}, mbOK, false},
    {static_cast<ButtonsChoice>(11), {u"&OK"}, {mbOK}, mbOK, true},
    {static_cast<ButtonsChoice>(-1), {u"&OK"}, {mbOK}, mbOK, true},
    {static_cast<ButtonsChoice>(kInt32.max()), {u"&OK"}, {mbOK}, mbOK, true},
};

/// The answer of a box that has ended; absent while it is open.
std::optional<MbMsgBoxResult> AnswerOf(MessageBox& box) {
    if (box.IsOpen()) return std::nullopt;
    return box.ReturnedValue();
}

TEST_F(MessageBoxTest, EveryButtonGivesItsResult) {
    for (const SetRow& row : kSets) {
        for (int i = -1; i < 4; ++i) {
            SCOPED_TRACE(std::to_string(row.set) + " " + std::to_string(i));
            MessageBox box = Make(row.set);
            int changes = 0;
            box.Changed = [&] { ++changes; };
            const auto at = static_cast<std::size_t>(i);
            const bool shown = i >= 0 && at < row.captions.size();
            EXPECT_EQ(box.ButtonCaption(i), shown ? row.captions[at] : u"");
            EXPECT_EQ(at < 3 && box.Layout().buttons[at].has_value(), shown);
            box.Press(i);
            box.Abandon();
            EXPECT_EQ(changes, 1);
            EXPECT_EQ(box.ReturnedValue(),
                      shown ? row.results[at] : row.closed.value_or(kNotAnswered));
        }
    }
}

TEST_F(MessageBoxTest, TheCloseBoxAnswersOrIsNotThere) {
    for (const SetRow& row : kSets) {
        SCOPED_TRACE(row.set);
        MessageBox closed = Make(row.set);
        EXPECT_EQ(closed.HasCloseBox(), row.closed.has_value());
        closed.CloseByUser();
        closed.Press(0);
        EXPECT_EQ(AnswerOf(closed), row.closed ? row.closed : row.results[0]);

        MessageBox abandoned = Make(row.set);
        abandoned.Abandon();
        abandoned.CloseByUser();
        EXPECT_EQ(AnswerOf(abandoned), row.closed.value_or(kNotAnswered));
    }
}

TEST_F(MessageBoxTest, EscapeAndEnterCloseOnlyWhereTheSetAllows) {
    for (const SetRow& row : kSets) {
        SCOPED_TRACE(row.set);
        MessageBox escaped = Make(row.set, 5);
        escaped.KeyDown(kEscape, MessageBox::kNoModifier);
        EXPECT_EQ(AnswerOf(escaped), row.escapeCloses ? row.closed : std::nullopt);
        EXPECT_FALSE(escaped.CountdownRunning());
        for (const int key : {kEnter, kEscape, int{'O'}}) {
            MessageBox typed = Make(row.set);
            typed.FormKeyPress(key);
            EXPECT_EQ(!typed.IsOpen(), row.set == mbNoButtons && key != 'O') << key;
            EXPECT_EQ(typed.ReturnedValue(), mbOK);
        }
    }
}

TEST_F(MessageBoxTest, AcceleratorsPressByTheLetterAlone) {
    std::vector<int> keys = {-1, 256 + 'O', 65536 + 'Y', 0x1000000, kInt32.max(), kInt32.min()};
    for (int key = 0; key < 256; ++key) keys.push_back(key);
    for (const SetRow& row : kSets) {
        for (const int key : keys) {
            for (unsigned modifiers = 0; modifiers < 8; ++modifiers) {
                if (key == kEscape || (key == 'C' && modifiers == MessageBox::kControl)) continue;
                MessageBox box = Make(row.set, 5);
                const auto action = box.KeyDown(key, modifiers);
                std::optional<MbMsgBoxResult> expected;
                for (std::size_t i = row.captions.size(); i-- > 0;) {
                    if (row.captions[i][1] == key) expected = row.results[i];
                }
                ASSERT_EQ(AnswerOf(box), expected) << row.set << " " << key << " " << modifiers;
                ASSERT_EQ(action == MessageBox::KeyAction::Handled, expected.has_value());
                ASSERT_FALSE(box.CountdownRunning());
            }
        }
    }
}

TEST_F(MessageBoxTest, ControlCCopiesAndNeverPresses) {
    for (const SetRow& row : kSets) {
        MessageBox box = Make(row.set, 5);
        EXPECT_EQ(box.KeyDown('C', MessageBox::kControl), MessageBox::KeyAction::Copy) << row.set;
        EXPECT_TRUE(box.IsOpen()) << row.set;
        EXPECT_FALSE(box.CountdownRunning()) << row.set;
    }
    EXPECT_EQ(Make({u"Save R&D &amp; go?\r\nNow", mbSaveDontSave, mbNoIcon, u"A & B"}).CopyText(),
              u"A & B\r\n\r\nSave R&D &amp; go?\r\nNow\r\n\r\nSave   Don't Save");
    EXPECT_EQ(Make({u"Wait", mbNoButtons, mbNoIcon, u""}).CopyText(),
              u"Front Desk\r\n\r\nWait\r\n");
}

TEST_F(MessageBoxTest, ReadingTheAnswerClearsIt) {
    MessageBox box = Make(mbYesNo);
    box.Press(1);
    EXPECT_EQ(box.ReturnedValue(), mbNo);
    EXPECT_EQ(box.ReturnedValue(), mbOK);
}

// Countdown

TEST_F(MessageBoxTest, ACountdownOfNEndsAtTheNthTick) {
    MessageBox box = Make(mbYesNo, 3);
    EXPECT_EQ(box.Caption(), u"Title");
    for (const TextIn caption :
         {u"Title          00:00:00 / 00:00:03", u"Title          00:00:01 / 00:00:03",
          u"Title          00:00:02 / 00:00:03"}) {
        EXPECT_TRUE(box.IsOpen());
        box.Tick();
        EXPECT_EQ(box.Caption(), caption);
    }
    EXPECT_FALSE(box.CountdownRunning());
    box.Tick();
    box.Press(0);
    EXPECT_EQ(AnswerOf(box), kClosedByCountdown);
    EXPECT_EQ(static_cast<std::int32_t>(kClosedByCountdown), 99);
}

TEST_F(MessageBoxTest, ACountdownTakesAnyNumberOfSeconds) {
    const struct {
        std::int32_t seconds;
        std::u16string caption;
    } rows[] = {
        {kInt32.min(), u"Title"},
        {0, u"Title"},
        {2, u"Title          00:00:00 / 00:00:02"},
        {3661, u"Title          00:00:00 / 01:01:01"},
        {360'000, u"Title          00:00:00 / 100:00:00"},
        {2'147'483'639, u"Title          00:00:00 / 596523:13:59"},
        {2'147'483'640, u"Title          00:00:00 / 596523:14:00"},
        {kInt32.max(), u"Title          00:00:00 / 596523:14:00"},
    };
    for (const auto& row : rows) {
        MessageBox box = Make(mbOkOnly, row.seconds);
        EXPECT_EQ(box.CountdownRunning(), row.seconds > 0);
        box.Tick();
        EXPECT_EQ(box.Caption(), row.caption);
        EXPECT_TRUE(box.IsOpen());
    }
}

TEST_F(MessageBoxTest, AKeyStopsTheCountdownAndAnAnswerEndsIt) {
    MessageBox stopped = Make(mbYesNo, 3);
    stopped.Tick();
    stopped.PressScroll(0);
    EXPECT_TRUE(stopped.CountdownRunning());
    EXPECT_EQ(stopped.KeyDown('Q', MessageBox::kNoModifier), MessageBox::KeyAction::None);
    for (int i = 0; i < 9; ++i) stopped.Tick();
    EXPECT_TRUE(stopped.IsOpen());
    EXPECT_EQ(stopped.Caption(), u"Title          00:00:00 / 00:00:03");

    MessageBox answered = Make(mbYesNo, 3);
    answered.Tick();
    EXPECT_EQ(answered.KeyDown('N', MessageBox::kShift), MessageBox::KeyAction::Handled);
    for (int i = 0; i < 9; ++i) answered.Tick();
    EXPECT_EQ(AnswerOf(answered), mbNo);
}

// What the box shows

TEST_F(MessageBoxTest, ColoursFollowTheScheme) {
    const MessageBoxColors white = {kWhite, kBlack, 0xC0C0C0};
    const struct {
        std::int32_t scheme;
        MessageBoxColors colors;
    } rows[] = {{mbWhite, white},
                {mbGray, {kButtonFace, std::nullopt, kButtonFace}},
                {mbSkinColor, {0x112233, 0x445566, std::nullopt}},
                {0, white},
                {4, white},
                {kInt32.min(), white}};
    for (const auto& row : rows) {
        MessageBoxRequest request;
        request.background = static_cast<ColorChoice>(row.scheme);
        const MessageBoxColors colors = Make(request).Colors();
        EXPECT_EQ(colors.background, row.colors.background) << row.scheme;
        EXPECT_EQ(colors.text, row.colors.text) << row.scheme;
        EXPECT_EQ(colors.buttonFace, row.colors.buttonFace) << row.scheme;
    }
}

TEST_F(MessageBoxTest, FontsAndIconsOutOfRangeAreReplaced) {
    const struct {
        std::int32_t choice;
        FontSpec font;
    } fonts[] = {{mb8, {u"", 8}}, {mb5, {u"Courier New", 9}},
                 {mb6, {u"", 6}}, {mb14, {u"", 14}},
                 {0, {u"", 9}},   {10, {u"", 9}},
                 {-1, {u"", 9}},  {kInt32.max(), {u"", 9}}};
    for (const auto& row : fonts) {
        MessageBoxRequest request;
        request.fontSize = static_cast<FontSizeChoice>(row.choice);
        EXPECT_EQ(Make(request).Font(), row.font) << row.choice;
    }
    const std::int32_t icons[][2] = {{0, 0}, {1, 1}, {8, 8}, {9, 0}, {-1, 0}, {kInt32.min(), 0}};
    for (const auto& [icon, picture] : icons) {
        EXPECT_EQ(Make({u"", mbOkOnly, static_cast<IconChoice>(icon), u""}).Picture(), picture)
            << icon;
    }
}

TEST_F(MessageBoxTest, ABoxIsCentredOnItsOwnerAndRefreshesItAtTheEnd) {
    const auto owner = std::make_shared<FakeOwner>();
    const auto ownedBox = [&] {
        MessageBoxRequest request;
        request.buttons = mbYesNoCancel;
        request.owner = owner;
        return request;
    };
    using Ending = void (*)(MessageBox&);
    const Ending endings[] = {[](MessageBox& box) { box.CloseByUser(); },
                              [](MessageBox& box) { box.KeyDown(kEscape, 0); },
                              [](MessageBox& box) { box.Abandon(); }};
    for (const Ending end : endings) {
        MessageBox box = Make(ownedBox());
        const auto place = box.CentredOnOwner();
        ASSERT_TRUE(place.has_value());
        EXPECT_EQ(place->left, 1000 + 4500 - box.Layout().form.width / 2);
        EXPECT_EQ(place->top, -500 + 2000 - box.Layout().form.height / 2);
        const int before = owner->refreshes;
        end(box);
        EXPECT_EQ(owner->refreshes, before + 1);
        EXPECT_EQ(owner.use_count(), 1);
    }
    MessageBox orphan = Make(ownedBox());
    owner->exists = false;
    EXPECT_FALSE(orphan.CentredOnOwner().has_value());
    orphan.CloseByUser();
    EXPECT_EQ(owner->refreshes, 3);
    EXPECT_EQ(AnswerOf(orphan), mbCancel);
    EXPECT_FALSE(Make(mbOkOnly).CentredOnOwner().has_value());
}

}  // namespace
}  // namespace halvek
