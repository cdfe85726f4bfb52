#include "tests/CleanState.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/text/DelimitedText.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace halvek {
namespace {

using Texts = std::vector<std::u16string>;

/// A marked array, to see whether a function leaves it alone.
StringArray Untouched() {
    return StringArray(7, {u"untouched"});
}

// The functions again as plain steps on positions from 1, to compare random texts with.

/// The position of a text from a start on; 0 for none.
std::size_t InStr(std::size_t start, const std::u16string& text, const std::u16string& what) {
    return text.find(what, start - 1) + 1;
}

std::u16string PlainField(std::u16string text, const std::u16string& delim, int number) {
    text += delim;
    std::size_t start = 1, field = 1, found = 1;
    for (int i = 0; i < number; ++i) {
        found = InStr(start, text, delim);
        if (found == 0) return u"";
        field = std::exchange(start, found + delim.size());
    }
    return text.substr(field - 1, found - field);
}

std::int32_t PlainCount(const std::u16string& text, const std::u16string& what) {
    std::int32_t count = 0;
    for (std::size_t at = InStr(1, text, what); at > 0; ++count) {
        at = InStr(at + what.size(), text, what);
    }
    return count;
}

Texts PlainArray(std::u16string text, const std::u16string& del) {
    if (text.empty() || text.substr(text.size() - 1) != del) text += del;
    Texts fields(1 + static_cast<std::size_t>(PlainCount(text, del)));
    std::size_t start = 1;
    for (std::size_t i = 1; i < fields.size(); ++i) {
        const std::size_t found = InStr(start, text, del);
        fields[i] = text.substr(start - 1, found - start);
        start = found + 1;
    }
    return fields;
}

/// The pieces, and whether they hold the whole text; an early end is a chunk without a delimiter.
std::pair<bool, Texts> PlainChunks(const std::u16string& text, std::size_t length,
                                   const std::u16string& del) {
    Texts pieces;
    std::size_t position = 1;
    while (pieces.empty() || position + length <= text.size()) {
        std::u16string piece = text.substr(position - 1, length);
        const bool ends = piece.substr(piece.size() - 1) == del;
        if (!ends) {
            const std::size_t last = piece.rfind(del);
            piece.resize(last == std::u16string::npos ? 0 : last + del.size());
        }
        if (piece.empty() && !pieces.empty()) return {false, pieces};
        if (!pieces.empty() || !ends) position += piece.size();
        pieces.push_back(piece);
        if (piece.empty()) return {false, pieces};
    }
    pieces.push_back(text.substr(position - 1));
    return {true, pieces};
}

TEST(DelimitedText, SplitStrGivesTheFieldOfANumber) {
    const struct {
        std::u16string text, delim;
        std::int16_t number;
        std::u16string field;
    } rows[] = {
        {u"A^B^C", u"^", 1, u"A"},    {u"A^B^C", u"^", 2, u"B"},
        {u"A^B^C", u"^", 3, u"C"},    {u"A^B^C", u"^", 4, u""},
        {u"A^^C", u"^", 2, u""},      {u"A^^C", u"^", 3, u"C"},
        {u"A^", u"^", 1, u"A"},       {u"A^", u"^", 2, u""},
        {u"^A", u"^", 1, u""},        {u"", u"^", 1, u""},
        {u"A~|B~|C", u"~|", 2, u"B"}, {u"A~|B~|C", u"~|", 3, u"C"},
        {u"A~|B~|", u"~|", 3, u""},   {u"A~|B~", u"~|", 2, u"B~"},
        {u"A~|B|", u"~|", 2, u"B|"},  {u"aXbxc", u"x", 2, u"c"},
        {u"A^B", u"^", 0, u""},       {u"A^B", u"^", -32768, u""},
        {u"A^B", u"", 1, u""},        {u"A^B", u"much longer", 1, u"A^B"},
        {u"~", u"~~", 1, u""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(SplitStr(row.text, row.delim, row.number), row.field)
            << ToUtf8(row.text) << " " << row.number;
    }
}

TEST(DelimitedText, StrToArrStepsByOneCharacterPastAnyDelimiter) {
    const struct {
        std::u16string text, delim;
        Texts elements;
    } rows[] = {
        {u"A|B|C", u"|", {u"", u"A", u"B", u"C"}},
        {u"A|B|", u"|", {u"", u"A", u"B"}},
        {u"||", u"|", {u"", u"", u""}},
        {u"", u"|", {u"", u""}},
        {u"A", u"|", {u"", u"A"}},
        {u"A~|B", u"~|", {u"", u"A", u"|B"}},
        {u"A~|B~|", u"~|", {u"", u"A", u"|B", u"|"}},
        {u"aa", u"aa", {u"", u"", u""}},
        {u"", u"~|", {u"", u""}},
        {u"A|B", u"", {u""}},
    };
    for (const auto& row : rows) {
        StringArray array = Untouched();
        EXPECT_TRUE(StrToArr(row.text, row.delim, array));
        EXPECT_EQ(array, StringArray(0, row.elements)) << ToUtf8(row.text);
    }
    StringArray own(0, {u"A field that is longer than any small buffer|B"});
    EXPECT_TRUE(StrToArr(own[0], u"|", own));
    EXPECT_EQ(own[2], u"B");
}

TEST(DelimitedText, CountInstancesDoesNotCountOverlaps) {
    const struct {
        std::u16string text, what;
        std::int32_t count;
    } rows[] = {{u"aaaa", u"aa", 2}, {u"aaaaa", u"aa", 2}, {u"a,b,,c", u",", 3}, {u"", u"a", 0},
                {u"aAa", u"a", 2},   {u"abc", u"", 0},     {u"ab", u"abc", 0},   {u"", u"", 0}};
    for (const auto& row : rows) EXPECT_EQ(CountInstances(row.text, row.what), row.count);
}

TEST(DelimitedText, ChunkStrToArrEndsPiecesAtDelimiters) {
    const struct {
        std::u16string text;
        std::int32_t length;
        std::u16string delim;
        bool whole;
        Texts pieces;
    } rows[] = {
        {u"AB|CD|EF|", 4, u"|", true, {u"AB|", u"CD|", u"EF|"}},
        {u"AB|CD|EF|", 3, u"|", true, {u"AB|", u"AB|", u"CD|", u"EF|"}},
        {u"AB|CD|EFG", 4, u"|", true, {u"AB|", u"CD|", u"EFG"}},
        {u"AB|CD|EF", 7, u"|", true, {u"AB|CD|", u"EF"}},
        {u"AB|CDEF|G|HI|JK|", 9, u"|", true, {u"AB|CDEF|", u"G|HI|JK|"}},
        {u"AB~|CD~|EF", 5, u"~|", true, {u"AB~|", u"CD~|", u"EF"}},
        {u"ABCD|EF", 4, u"|", false, {u""}},
        {u"AB|CDEFGH|I|", 4, u"|", false, {u"AB|"}},
        {u"AB|CDEFGH|I|", 3, u"|", false, {u"AB|", u"AB|"}},
    };
    for (const auto& row : rows) {
        StringArray array = Untouched();
        EXPECT_EQ(ChunkStrToArr(row.text, array, row.length, row.delim), row.whole)
            << ToUtf8(row.text) << " " << row.length;
        EXPECT_EQ(array, StringArray(0, row.pieces)) << ToUtf8(row.text) << " " << row.length;
    }
    StringArray own(0, {u"A record that is longer than any small buffer|B|C|D|E|"});
    EXPECT_TRUE(ChunkStrToArr(own[0], own, 51, u"|"));
    EXPECT_EQ(own[1], u"D|E|");
}

TEST(DelimitedText, ChunkStrToArrLeavesTheArrayAloneWhenThereIsNothingToCut) {
    constexpr auto kInt32 = std::numeric_limits<std::int32_t>{};
    StringArray array = Untouched();
    EXPECT_FALSE(ChunkStrToArr(u"", array, 4, u"|"));
    EXPECT_FALSE(ChunkStrToArr(u"A|B|", array, 2, u""));
    EXPECT_FALSE(ChunkStrToArr(u"ABCD|FGHI|", array, 10, u"|"));
    for (const std::int32_t length : {0, -1, kInt32.min(), 4, 5, kInt32.max()}) {
        EXPECT_FALSE(ChunkStrToArr(u"A|B|", array, length, u"|")) << length;
    }
    EXPECT_EQ(array, Untouched());
}

TEST(DelimitedText, SplitLeftRightWritesBothOutputsOrNone) {
    const struct {
        std::u16string text, delim, left, right;
    } rows[] = {
        {u"key=value", u"=", u"key", u"value"},   {u"key=", u"=", u"key", u""},
        {u"=value", u"=", u"", u"value"},         {u"a=b=c", u"=", u"a", u"b=c"},
        {u"key=>value", u"=>", u"key", u"value"}, {u"keyXvalue", u"x", u"old left", u"old right"},
        {u"", u"=", u"old left", u"old right"}};
    for (const auto& row : rows) {
        std::u16string left = u"old left", right = u"old right";
        SplitLeftRight(row.text, row.delim, left, right);
        EXPECT_EQ(std::pair(left, right), std::pair(row.left, row.right)) << ToUtf8(row.text);
    }
    const std::u16string key(100, u'k'), value(200, u'v');
    std::u16string left, right = key + u"=" + value;  // the text may be a view of an output
    SplitLeftRight(right, u"=", left, right);
    EXPECT_EQ(std::pair(left, right), std::pair(key, value));
    left += u"=" + value;
    SplitLeftRight(left, u"=", left, right);
    EXPECT_EQ(std::pair(left, right), std::pair(key, value));
}

TEST(DelimitedText, RandomTextsGiveWhatThePlainStepsGive) {
    std::mt19937 random(20240305);
    const auto below = [&](unsigned count) { return random() % count; };
    const std::u16string delims[] = {u"|", u"~|", u"||", u"|~|", u"a"};
    for (int round = 0; round < 5'000; ++round) {
        std::u16string text;
        for (auto left = below(30); left > 0; --left) text += u"a|~b|"[below(5)];
        const std::u16string& delim = delims[below(5)];
        const auto number = static_cast<std::int16_t>(1 + below(9));
        const auto length = static_cast<std::int32_t>(1 + below(14));
        SCOPED_TRACE(ToUtf8(text + u" at " + delim) + " " + std::to_string(length));
        ASSERT_EQ(SplitStr(text, delim, number), PlainField(text, delim, number));
        ASSERT_EQ(CountInstances(text, delim), PlainCount(text, delim));
        StringArray array;
        ASSERT_TRUE(StrToArr(text, delim, array));
        ASSERT_EQ(array, StringArray(0, PlainArray(text, delim)));

        if (text.size() <= static_cast<std::size_t>(length)) continue;
        const auto [whole, pieces] = PlainChunks(text, static_cast<std::size_t>(length), delim);
        ASSERT_EQ(ChunkStrToArr(text, array, length, delim), whole);
        ASSERT_EQ(array, StringArray(0, pieces));
        if (!whole) continue;
        std::u16string joined;
        for (const std::u16string& piece : array) joined += piece;
        const bool twice = joined.size() > text.size();
        ASSERT_EQ(joined.substr(twice ? array[0].size() : 0), text);
    }
}

TEST(DelimitedText, HugeTextsAreCut) {
    const std::u16string bars(1'000'000, u'|');
    EXPECT_EQ(CountInstances(bars, u"|"), 1'000'000);
    EXPECT_EQ(SplitStr(bars, u"|", 32767), u"");
    StringArray array;
    EXPECT_TRUE(StrToArr(bars, u"|", array));
    EXPECT_EQ(array.UBound(), 1'000'000);
    EXPECT_TRUE(StrToArr(bars, u"||", array));
    EXPECT_EQ(array.UBound(), 500'001);
    EXPECT_TRUE(ChunkStrToArr(bars, array, 1, u"|"));
    EXPECT_EQ(array.UBound(), 1'000'000);

    const std::u16string endless(50'000'000, u'x');  // 100 MB without a delimiter
    std::u16string left = u"left", right = u"right";
    SplitLeftRight(endless, u"=", left, right);
    EXPECT_EQ(left + right, u"leftright");
    EXPECT_EQ(SplitStr(endless, u"|", 2), u"");
    EXPECT_FALSE(ChunkStrToArr(endless, array, 1000, u"|"));
    EXPECT_EQ(array.UBound(), 0);
}

class ExistsInCollTest : public CleanState {};

TEST_F(ExistsInCollTest, FetchesUnderTheCollectionsOwnKeyRule) {
    const auto utils = Utils::Create();
    EXPECT_FALSE(ExistsInColl(nullptr, u"INS"));
    utils->BuildCodesCollection(u"");
    EXPECT_FALSE(ExistsInColl(utils->GetCodesCollection(), u"INS"));
    utils->BuildCodesCollection(u"InsuranceæINSæ1æ1ææ|a record without a key");
    for (const TextIn key : {u"INS", u"ins", u"Ins"}) {
        EXPECT_TRUE(ExistsInColl(utils->GetCodesCollection(), key)) << ToUtf8(key);
    }
    for (const TextIn key : {u"INS ", u"IN", u""}) {
        EXPECT_FALSE(ExistsInColl(utils->GetCodesCollection(), key)) << ToUtf8(key);
    }
}

}  // namespace
}  // namespace halvek
