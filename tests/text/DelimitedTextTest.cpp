// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/text/DelimitedText.h>

#include <map>

namespace halvek {
namespace {

using Texts = std::vector<std::u16string>;

/// A marked array, to see whether a function leaves it alone.
StringArray Untouched() {
    return StringArray(7, {u"untouched"});
}

// DelimitedTextFuzz has the plain rules; these are the odd ones.

TEST(DelimitedText, AFieldIsLookedForInItsOwnLetterCaseAndByItsNumberFrom1) {
    EXPECT_EQ(SplitStr(u"aXbxc", u"x", 2), u"c");
    EXPECT_EQ(SplitStr(u"A^B", u"", 1) + SplitStr(u"A^B", u"^", 0) + SplitStr(u"A^B", u"^", -32768),
              u"");
}

TEST(DelimitedText, StrToArrStepsByOneCharacterPastAnyDelimiter) {
    const struct {
        std::u16string text, delim;
        Texts elements;
    } rows[] = {{u"", u"|", {u"", u""}},
                {u"A~|B~|", u"~|", {u"", u"A", u"|B", u"|"}},
                {u"aa", u"aa", {u"", u"", u""}},
                {u"A|B", u"", {u""}}};
    for (const auto& row : rows) {
        StringArray array = Untouched();
        EXPECT_TRUE(StrToArr(row.text, row.delim, array));
        EXPECT_EQ(array, StringArray(0, row.elements)) << ToUtf8(row.text);
    }
}

TEST(DelimitedText, ChunkStrToArrRepeatsAPieceThatIsFullAndKeepsWhatFitsNoPiece) {
    StringArray array = Untouched();
    EXPECT_TRUE(ChunkStrToArr(u"AB|CD|EF|", array, 3, u"|"));
    EXPECT_EQ(array, StringArray(0, {u"AB|", u"AB|", u"CD|", u"EF|"}));
    EXPECT_FALSE(ChunkStrToArr(u"AB|CDEFGH|I|", array, 3, u"|"));
    EXPECT_EQ(array, StringArray(0, {u"AB|", u"AB|"}));
    EXPECT_FALSE(ChunkStrToArr(u"ABCD|EF", array, 4, u"|"));
    EXPECT_EQ(array, StringArray(0, {u""}));
}

TEST(DelimitedText, ChunkStrToArrLeavesTheArrayAloneWhenThereIsNothingToCut) {
    StringArray array = Untouched();
    EXPECT_FALSE(ChunkStrToArr(u"", array, 4, u"|"));
    EXPECT_FALSE(ChunkStrToArr(u"A|B|", array, 2, u""));
    for (const std::int32_t length : {0, -1, 4, 5, 2'147'483'647}) {
        EXPECT_FALSE(ChunkStrToArr(u"A|B|", array, length, u"|")) << length;
    }
    EXPECT_EQ(array, Untouched());
}

TEST(DelimitedText, SplitLeftRightWritesBothOutputsOrNone) {
    const struct {
        std::u16string text, delim, left, right;
    } rows[] = {
        {u"a=b=c", u"=", u"a", u"b=c"},
        {u"=", u"=", u"", u""},
        {u"key=>value", u"=>", u"key", u"value"},
        {u"keyXvalue", u"x", u"old left", u"old right"},
    };
    for (const auto& row : rows) {
        std::u16string left = u"old left", right = u"old right";
        SplitLeftRight(row.text, row.delim, left, right);
        EXPECT_EQ(std::pair(left, right), std::pair(row.left, row.right)) << ToUtf8(row.text);
    }
}

TEST(DelimitedText, TheTextMayBeAViewOfAnOutput) {
    const std::u16string key(100, u'k'), value(200, u'v');
    StringArray array(0, {key + u"|" + value});
    EXPECT_TRUE(StrToArr(array[0], u"|", array));
    EXPECT_EQ(array, StringArray(0, {u"", key, value}));
    array[0] = key + u"|" + value;
    EXPECT_TRUE(ChunkStrToArr(array[0], array, 250, u"|"));
    EXPECT_EQ(array, StringArray(0, {key + u"|", value}));

    std::u16string left, right;
    for (std::u16string* const text : {&left, &right}) {
        *text = key + u"=" + value;
        SplitLeftRight(*text, u"=", left, right);
        EXPECT_EQ(std::pair(left, right), std::pair(key, value));
    }
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
