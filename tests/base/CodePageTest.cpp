#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/Utf8.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace halvek {
namespace {

using namespace std::string_view_literals;

TEST(CodePage, GivesEveryByteBackAsItWas) {
    std::string bytes;
    for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
    const std::u16string text = FromCodePage(bytes);
    EXPECT_EQ(ToCodePage(text), bytes);
    EXPECT_EQ(text.substr(0x7E, 36),
              u"~\u007F€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ\u00A0¡");
    EXPECT_EQ(text.back(), u'ÿ');
}

TEST(CodePage, WritesAQuestionMarkForWhatItLacks) {
    int known = 0;
    for (int character = 0; character < 0x10000; ++character) {
        const std::uint8_t code = CodeOf(static_cast<char16_t>(character));
        const bool lacking = CharacterOf(code) != character;
        known += lacking ? 0 : 1;
        ASSERT_TRUE(!lacking || code == '?') << character;
    }
    EXPECT_EQ(known, 256);
    EXPECT_EQ(ToCodePage(u"\u0141\u00F3w \U0001F600"), "?\xF3w ??");
}

TEST(Utf8, ReplacesEveryByteOfAMalformedSequence) {
    const std::pair<std::string_view, std::u16string_view> rows[] = {
        {"a\0\x7F"sv, u"a\0\x7F"sv},
        {"\xC2\x80\xC3\xA9\xDF\xBF\xE0\xA0\x80", u"\x80\u00E9\u07FF\u0800"},
        {"\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", u"\uD7FF\uE000\uFFFF"},
        {"\xF0\x90\x80\x80\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF", u"\U00010000\U0001F600\U0010FFFF"},
        // Overlong
        {"\xC0\x80\xC1\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xE0\x9F\xBF\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        // Surrogates, above the last character, bytes that never lead
        {"\xED\xA0\x80\xED\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF5\x80\xF8\xFE\xFF\x80\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        // Truncated, by the end and by a character that must survive
        {"\xC3", u"\uFFFD"},
        {{"\xE2\x82\xAC", 2}, u"\uFFFD\uFFFD"},
        {{"\xF0\x9F\x98\x80", 3}, u"\uFFFD\uFFFD\uFFFD"},
        {"\xC3x\xE2\x82y\xF0\x9F\x98z", u"\uFFFDx\uFFFD\uFFFDy\uFFFD\uFFFD\uFFFDz"},
        {"\xE2\xC3\xA9\xF0\xE2\x82\xAC", u"\uFFFD\u00E9\uFFFD\u20AC"},
    };
    for (const auto& [bytes, text] : rows) EXPECT_EQ(FromUtf8(bytes), text) << ToUtf8(text);
}

TEST(Utf8, ReplacesASurrogateWithoutItsPartner) {
    const std::pair<std::u16string_view, std::string_view> rows[] = {
        {u"\xD83D\xDE00", "\xF0\x9F\x98\x80"},
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
