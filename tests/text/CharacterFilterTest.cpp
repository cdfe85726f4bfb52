// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/text/CharacterFilter.h>

#include <tuple>

namespace halvek {
namespace {

struct CharacterFilter : CleanState {
    void SetUp() override { Start(); }
};

TEST_F(CharacterFilter, TellsWantedFromUnwantedCodes) {
    for (const int code : {-5, 0, 9, 31, 58, 94, 96, 124, 127, 200, 255, 256, 70'000})
        EXPECT_TRUE(utils_->IsUnwantedChar(code)) << code;
    for (const int code : {10, 13, 32, 44, 57, 59, 65, 126})
        EXPECT_FALSE(utils_->IsUnwantedChar(code)) << code;
    for (const int code : {8, 47, 48, 57}) EXPECT_TRUE(utils_->IsDateChar(code)) << code;
    for (const int code : {0, 9, 32, 45, 46, 58, 65, 0xB2, 255})
        EXPECT_FALSE(utils_->IsDateChar(code)) << code;
    EXPECT_EQ(FaultOf([&] { utils_->IsDateChar(-1); }), 5);
    EXPECT_EQ(FaultOf([&] { utils_->IsDateChar(256); }), 5);
    for (const char16_t* text : {u"", u"abcXYZ"}) EXPECT_TRUE(utils_->IsAlpha(text));
    for (const char16_t* text : {u"a b", u"\u00C9", u"\u0131", u"\u017F", u"\u212A", u"1"})
        EXPECT_FALSE(utils_->IsAlpha(text)) << ToUtf8(text);
}

TEST_F(CharacterFilter, RemovesOrReplacesUnwantedCharacters) {
    const std::tuple<TextIn, TextIn, TextIn, TextIn, bool> rows[] = {
        {u"a|b\tc", u"--", u"|", u"a|b--c", true}, {u"a~b\r\n", u"", u"", u"a~b\r\n", false},
        {u"\u20ACx\u0142", u"", u"", u"x?", true},  // the euro is in the code page, the l is not
        {u"a|b", u"", u"||x,:", u"a|b", false},     // the first character counts
        {u"x|", u"|", u"", u"x|", true},
    };
    for (const auto& [in, with, exceptions, expected, found] : rows) {
        std::u16string out = u"before";
        EXPECT_EQ(utils_->RemoveUnwantedChars(in, out, with, false, false, exceptions), found);
        EXPECT_EQ(out, expected) << ToUtf8(in);
    }
}

TEST_F(CharacterFilter, NamesTheForbiddenCharactersInItsMessage) {
    const std::u16string found = u"Invalid characters were found";
    const std::u16string list = u".\r\nThe following characters may not be used: \r\n";
    const std::tuple<bool, const char16_t*, std::u16string> rows[] = {
        {false, u"", found + u" and removed" + list + u"| : ^ ` ~\r\n"},
        {false, u"|", found + u" and removed" + list + u" : ^ ` ~\r\n"},
        {true, u"~,:x,`", found + list + u" | : ^\r\n"},
    };
    for (const auto& [look, exceptions, named] : rows) {
        desktop_.OnMessageBox([&, prompt = named](MessageBox& box) {
            EXPECT_EQ(box.Prompt(), prompt);
            EXPECT_EQ(box.Picture(), mbExclamation);
        });
        std::u16string out;
        EXPECT_TRUE(utils_->RemoveUnwantedChars(u"\t", out, u"", true, look, exceptions));
        EXPECT_EQ(desktop_.AnswersLeft(), 0u);
    }
}

TEST_F(CharacterFilter, ShowsBothTextsInTheDebugConsole) {
    Start(true);
    utils_->ClearDebug();
    std::u16string out;
    RemoveUnwantedChars(u"a|b", out, u"-", true);
    RemoveUnwantedChars(u"ab", out);
    EXPECT_EQ(desktop_.Console()->Text(),
              u"Invalid chars fnd and rmvd.\r\nstrIN:     a|b\r\nstrOUT: a-b\r\n\r\n");
    Services::Install(nullptr);
    EXPECT_EQ(FaultOf([&] { RemoveUnwantedChars(u"c|d", out); }), 91);
    EXPECT_EQ(out, u"cd");
}

}  // namespace
}  // namespace halvek
