// SPDX-License-Identifier: MIT
#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/Utf8.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace halvek {
namespace {

TEST(CodePage, GivesEveryByteBackAsItWas) {
    std::string bytes;
    for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
    const std::u16string text = FromCodePage(bytes);
    EXPECT_EQ(ToCodePage(text), bytes);
    EXPECT_EQ(text.substr(0x7E, 36),
              u"~\u007F€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ\u00A0¡");
}

TEST(CodePage, WritesAQuestionMarkForWhatItLacks) {
    for (int character = 0; character < 0x10000; ++character) {
        const std::uint8_t code = CodeOf(static_cast<char16_t>(character));
        ASSERT_TRUE(CharacterOf(code) == character || code == '?') << character;
    }
    EXPECT_EQ(ToCodePage(u"\u0141\u00F3w \U0001F600"), "?\xF3w ??");
}

TEST(Utf8, ReplacesEveryByteOfAMalformedSequence) {
    const std::pair<std::string_view, std::u16string_view> rows[] = {
        {"\xF4\x8F\xBF\xBF\xF4\x90\x80\x80", u"\U0010FFFF\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xC0\x80\xC1\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xE0\x9F\xBF\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xED\xA0\x80\xED\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF5\x80\xF8\xFE\xFF\x80\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        {{"\xF0\x9F\x98\x80", 3}, u"\uFFFD\uFFFD\uFFFD"},
        {"\xC3x\xE2\x82y\xF0\x9F\x98z", u"\uFFFDx\uFFFD\uFFFDy\uFFFD\uFFFD\uFFFDz"},
        {"\xE2\xC3\xA9\xF0\xE2\x82\xAC", u"\uFFFD\u00E9\uFFFD\u20AC"},
    };
    for (const auto& [bytes, text] : rows) EXPECT_EQ(FromUtf8(bytes), text) << ToUtf8(text);
}

TEST(Utf8, ReplacesASurrogateWithoutItsPartner) {
    const std::pair<std::u16string_view, std::string_view> rows[] = {
        {{u"\xD83D\xDE00", 1}, "\xEF\xBF\xBD"},
        {u"\xD83Dx", "\xEF\xBF\xBDx"},
        {u"\xDE00\xD83D", "\xEF\xBF\xBD\xEF\xBF\xBD"},
        {u"\xD83D\xD83D\xDE00", "\xEF\xBF\xBD\xF0\x9F\x98\x80"},
    };
    for (const auto& [text, bytes] : rows) EXPECT_EQ(ToUtf8(text), bytes);
}

TEST(Utf8, ReadsBackEveryCharacter) {
    std::u16string text;
    for (char32_t character = 0; character < 0x10000; ++character) {
        if (character < 0xD800 || character > 0xDFFF) text += static_cast<char16_t>(character);
    }
    for (char16_t high = 0xD800; high < 0xDC00; ++high) text += {high, 0xDC00, high, 0xDFFF};
    EXPECT_TRUE(FromUtf8(ToUtf8(text)) == text);
}

}  // namespace
}  // namespace halvek
