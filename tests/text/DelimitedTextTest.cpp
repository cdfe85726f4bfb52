// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/text/DelimitedText.h>

#include <map>
#include <tuple>

namespace halvek {
namespace {

using Texts = std::vector<std::u16string>;

// DelimitedTextFuzz has the plain rules; these are the odd ones.

TEST(DelimitedText, NoFieldHasANumberBelow1) {
    EXPECT_EQ(SplitStr(u"A^B", u"^", 0) + SplitStr(u"A^B", u"^", -32768), u"");
    EXPECT_EQ(SplitStr(u"A^B", u"", 1), u"");
}

TEST(DelimitedText, CountsMoreThanABlockOfCountersHolds) {
    const std::u16string bars(200'000, u'|');
    EXPECT_EQ(CountInstances(bars, u"|"), 200'000);
    EXPECT_EQ(CountInstances(u"~" + bars, u"~|") + CountInstances(bars + u"~", u"|~"), 2);
}

TEST(DelimitedText, StrToArrStepsByOneCharacterPastAnyDelimiter) {
    const std::tuple<TextIn, TextIn, Texts> rows[] = {{u"", u"|", {u"", u""}},
                                                      {u"A~|B~|", u"~|", {u"", u"A", u"|B", u"|"}},
                                                      {u"aa", u"aa", {u"", u"", u""}},
                                                      {u"A|B", u"", {u""}}};
    for (const auto& [text, delim, elements] : rows) {
        StringArray array;
        EXPECT_TRUE(StrToArr(text, delim, array));
        EXPECT_EQ(array, StringArray(0, elements)) << ToUtf8(text);
    }
}

TEST(DelimitedText, ChunkStrToArrRepeatsAFullPieceAndCutsNothingWithoutADelimiter) {
    StringArray array;
    EXPECT_TRUE(ChunkStrToArr(u"AB|CD|EF|", array, 3, u"|"));
    EXPECT_EQ(array, StringArray(0, {u"AB|", u"AB|", u"CD|", u"EF|"}));
    EXPECT_FALSE(ChunkStrToArr(u"AB|CDEFGH|I|", array, 3, u"|"));
    EXPECT_EQ(array, StringArray(0, {u"AB|", u"AB|"}));
    EXPECT_FALSE(ChunkStrToArr(u"ABCD|EF", array, 4, u"|"));
    EXPECT_EQ(array, StringArray(0, {u""}));

    array = StringArray(7, {u"untouched"});
    EXPECT_FALSE(ChunkStrToArr(u"", array, 4, u"|"));
    EXPECT_FALSE(ChunkStrToArr(u"A|B|", array, 2, u""));
    for (const std::int32_t length : {0, -1, 4, 5, 2'147'483'647}) {
        EXPECT_FALSE(ChunkStrToArr(u"A|B|", array, length, u"|")) << length;
    }
    EXPECT_EQ(array, StringArray(7, {u"untouched"})) << "there is nothing to cut";
}

using ExistsInColl = CleanState;

/// A host's own collection, whose keys distinguish letter case.
struct Visits {
    std::size_t Count() const { return numbers.size(); }
    int Item(std::u16string_view key) {
        ++fetches;
        return numbers.at(std::u16string(key));
    }

    std::map<std::u16string, int> numbers;
    int fetches = 0;
};
static_assert(Fetchable<Visits> && !Fetchable<const Visits> && !Fetchable<std::u16string>);

TEST_F(ExistsInColl, FetchesFromACollectionOfTheHostsOwn) {
    const auto visits = std::make_shared<Visits>();
    EXPECT_FALSE(utils_->ExistsInColl(visits, u"v1"));
    EXPECT_EQ(visits->fetches, 0) << "an empty one is not asked";
    visits->numbers[u"v1"] = 1;
    EXPECT_TRUE(utils_->ExistsInColl(visits, u"v1"));
    EXPECT_FALSE(utils_->ExistsInColl(visits, u"V1"));
    EXPECT_EQ(visits->fetches, 2);
    EXPECT_FALSE(utils_->ExistsInColl(std::shared_ptr<Visits>(), u"v1"));
}

}  // namespace
}  // namespace halvek
