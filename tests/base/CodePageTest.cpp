// SPDX-License-Identifier: MIT
#include <halvekutils/base/CodePage.h>

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace halvek
