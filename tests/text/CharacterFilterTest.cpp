#include "tests/CleanState.h"
#include "tests/FakeServices.h"
#include "tests/FaultOf.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/text/CharacterFilter.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace halvek {
namespace {

std::u16string Named(const char16_t* list) {
    return std::u16string(u"The following characters may not be used: \r\n") + list + u"\r\n";
}

class CharacterFilter : public CleanState {
  protected:
    void SetUp() override { utils_->InitUtils(u"", u"Front Desk", u"", false, u""); }

    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(CharacterFilter, TellsWantedFromUnwantedCodes) {
    for (const int code : {-5, 0, 9, 31, 58, 94, 96, 124, 127, 200, 255, 256, 70'000}) {
        EXPECT_TRUE(utils_->IsUnwantedChar(code)) << code;
    }
    for (const int code : {10, 13, 32, 44, 57, 59, 65, 126}) {
        EXPECT_FALSE(utils_->IsUnwantedChar(code)) << code;
    }
    for (const int code : {8, 47, 48, 57}) EXPECT_TRUE(utils_->IsDateChar(code)) << code;
    for (const int code : {0, 9, 32, 45, 46, 58, 65, 0xB2, 255}) {
        EXPECT_FALSE(utils_->IsDateChar(code)) << code;
    }
    for (const int code : {-1, 256}) {
        EXPECT_EQ(FaultOf([&] { utils_->IsDateChar(code); }), 5) << code;
    }
    for (const char16_t* text : {u"", u"abcXYZ"}) EXPECT_TRUE(utils_->IsAlpha(text));
    for (const char16_t* text : {u"a b", u"\u00C9", u"\u0131", u"\u017F", u"\u212A", u"1"}) {
        EXPECT_FALSE(utils_->IsAlpha(text)) << ToUtf8(text);
    }
}

TEST_F(CharacterFilter, RemovesOrReplacesUnwantedCharacters) {
    const struct {
        const char16_t *in, *replaceWith, *exceptions, *out;
        bool found;
    } rows[] = {
        {u"", u"#", u"", u"", false},
        {u"a|b\tc", u"", u"", u"abc", true},
        {u"a|b\tc", u"--", u"|", u"a|b--c", true},
        {u"|:^`", u"", u"|,:,^,`", u"|:^`", false},
        {u"a~b\r\n", u"", u"", u"a~b\r\n", false},
        {u"\u20ACx\u0142", u"", u"", u"x?", true},  // the euro is a code, the l is none
        {u"\u20ACx\u0142", u"", u"\u20AC", u"\u20ACx?", false},
        {u"a|b", u"", u"||x,:", u"a|b", false},  // the first character counts
        {u"a|b", u"", u",,", u"ab", true},
        {u"x|", u"|", u"", u"x|", true},
    };
    for (const auto& row : rows) {
        std::u16string out = u"before";
        EXPECT_EQ(
            utils_->RemoveUnwantedChars(row.in, out, row.replaceWith, false, false, row.exceptions),
            row.found)
            << ToUtf8(row.in);
        EXPECT_EQ(out, row.out) << ToUtf8(row.in);
        EXPECT_EQ(
            utils_->RemoveUnwantedChars(row.in, out, row.replaceWith, false, true, row.exceptions),
            row.found);
        EXPECT_EQ(out, row.in);
    }
}

TEST_F(CharacterFilter, ReadsAnInputThatIsItsOwnOutput) {
    for (std::u16string text : {std::u16string(u"|a:"), std::u16string(500, u'|') + u"a"}) {
        EXPECT_TRUE(utils_->RemoveUnwantedChars(TextIn(text), text, u"", false, true));
        EXPECT_GT(text.size(), 2u);
        EXPECT_TRUE(utils_->RemoveUnwantedChars(text, text, u""));
        EXPECT_EQ(text, u"a");
    }
}

TEST_F(CharacterFilter, NamesTheForbiddenCharactersInItsMessage) {
    const std::u16string found = u"Invalid characters were found.\r\n";
    const std::u16string removed = u"Invalid characters were found and removed.\r\n";
    const struct {
        bool look;
        const char16_t* exceptions;
        std::u16string text;
    } rows[] = {
        {false, u"", removed + Named(u"| : ^ ` ~")},
        {true, u"", found + Named(u"| : ^ ` ~")},
        {false, u"|", removed + Named(u" : ^ ` ~")},
        {true, u"~,:x,`", found + Named(u" | : ^")},
    };
    for (const auto& row : rows) {
        desktop_.OnMessageBox([&](MessageBox& box) {
            EXPECT_EQ(box.Prompt(), row.text);
            EXPECT_EQ(box.Caption(), u"Front Desk");
            EXPECT_EQ(box.Picture(), mbExclamation);
            EXPECT_EQ(box.Buttons(), mbOkOnly);
        });
        std::u16string out;
        EXPECT_TRUE(utils_->RemoveUnwantedChars(u"\t", out, u"", true, row.look, row.exceptions));
        EXPECT_EQ(desktop_.AnswersLeft(), 0u);
        EXPECT_FALSE(utils_->RemoveUnwantedChars(u"clean", out, u"", true));
    }
}

TEST_F(CharacterFilter, ShowsBothTextsInTheDebugConsole) {
    FakeServices session;
    session.debug = true;
    Services::Install(&session);
    std::u16string out;
    RemoveUnwantedChars(u"a|b", out, u"-", true);
    RemoveUnwantedChars(u"ab", out);
    session.debug = false;
    RemoveUnwantedChars(u"a|b", out);
    EXPECT_EQ(session.shown,
              std::vector<std::u16string>(
                  {u"Invalid chars fnd and rmvd.\r\nstrIN:     a|b\r\nstrOUT: a-b\r\n"}));
    Services::Install(nullptr);
    EXPECT_EQ(FaultOf([&] { RemoveUnwantedChars(u"c|d", out); }), 91);
    EXPECT_EQ(out, u"cd");
}

TEST_F(CharacterFilter, ShowsUnprintableCharactersAsTheirCodes) {
    const struct {
        const char16_t *in, *out;
    } rows[] = {{u"", u""},
                {u"a\tb", u"a<9>b"},
                {u"a\r\nb", u"a<13>\r\n<10>b"},
                {u"~\u007F\u00E9\u20AC", u"~<127><233><128>"},
                {u"x\u0142\U0001F600y", u"x???y"}};
    for (const auto& row : rows) EXPECT_EQ(utils_->RemoveUnprintableChars(row.in), row.out);
}

}  // namespace
}  // namespace halvek
