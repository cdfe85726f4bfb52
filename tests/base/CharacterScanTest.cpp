// SPDX-License-Identifier: MIT
#include <halvekutils/base/CharacterScan.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace halvek {
namespace {

/// Texts in which separators, their neighbours in code and wide characters meet at every place.
std::u16string RandomText(std::mt19937& random, std::size_t length) {
    constexpr std::u16string_view kCharacters =
        u"||~aZ :^`\x1F\x7F\x80\xFF\x017C\x7F7C\x807C\xFFFF";
    std::u16string text;
    for (std::size_t i = 0; i < length; ++i) text += kCharacters[random() % kCharacters.size()];
    return text;
}

TEST(CharacterBlock, TheFastFormsAgreeWithThePortableOnes) {
    std::mt19937 random(1);
    for (int i = 0; i < 5000; ++i) {
        const std::u16string block = RandomText(random, kBlockLength);
        EXPECT_EQ(MaskOf(block.data(), u'|'), PortableMaskOf(block.data(), u'|'));
        const auto others = MaskOfOthers<u' ', u'~', u':', u'|'>(block.data());
        EXPECT_EQ(others, (PortableMaskOfOthers<u' ', u'~', u':', u'|'>(block.data())));
    }
}

TEST(CharacterScan, FindsSkipsAndCountsAsAPlainScanDoes) {
    std::mt19937 random(2);
    for (std::size_t length = 0; length < 300; ++length) {
        const std::u16string text = RandomText(random, length);
        std::vector<std::size_t> bars, either;
        std::size_t pairs = 0;
        for (std::size_t i = 0; i < length; ++i) {
            if (text[i] == u'|') bars.push_back(i);
            if (text[i] == u'|' || text[i] == u'~') either.push_back(i);
            if (text[i] == u'|' && i + 1 < length && text[i + 1] == u'~') ++pairs;
        }
        CharacterScan scan(text, u'|', u'~');
        for (const std::size_t place : either) ASSERT_EQ(scan.Next(), place);
        EXPECT_EQ(scan.Next(), scan.kNone);
        const std::size_t skipped = random() % 20;
        CharacterScan skipping(text, u'|');
        skipping.Skip(skipped);
        EXPECT_EQ(skipping.Next(), skipped < bars.size() ? bars[skipped] : skipping.kNone);
        EXPECT_EQ(CountOf(text, u'|'), bars.size());
        EXPECT_EQ(CountOfPair(text, u'|', u'~'), pairs);
    }
}

TEST(CharacterScan, CountsMoreThanItsCountersHold) {
    const std::u16string bars(200'000, u'|');
    EXPECT_EQ(CountOf(bars, u'|'), bars.size());
    EXPECT_EQ(CountOfPair(u'~' + bars, u'~', u'|'), 1u);
    EXPECT_EQ(CountOfPair(bars + u'~', u'|', u'~'), 1u);
}

}  // namespace
}  // namespace halvek
