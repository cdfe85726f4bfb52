// SPDX-License-Identifier: MIT
#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/Utf8.h>

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace halvek
