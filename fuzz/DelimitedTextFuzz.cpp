// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/text/DelimitedText.h>

using namespace halvek;

namespace {

std::u16string Joined(const StringArray& parts, std::int32_t first, std::u16string_view between) {
    std::u16string text;
    for (std::int32_t i = first; i <= parts.UBound(); ++i) text.append(parts[i]).append(between);
    return text;
}

void CheckFields(const std::u16string& text, const std::u16string& del) {
    StringArray fields(0, {text});
    Require(StrToArr(fields[0], del, fields), "every text can be cut, its own result too");
    Require(fields[0].empty(), "element 0 stays empty");
    const bool closed = !text.empty() && text.ends_with(del);
    Require(Joined(fields, 1, del) == (closed ? text : text + del), "the fields give the text");
    for (std::int32_t i = 1; i <= std::min(fields.UBound(), 20); ++i) {
        Require(SplitStr(text, del, static_cast<std::int16_t>(i)) == fields[i],
                "a field by its number is the same field");
    }
}

void CheckChunks(const std::u16string& text, const std::u16string& del, std::int32_t length) {
    StringArray chunks(0, {text});
    if (!ChunkStrToArr(chunks[0], chunks, length, del)) return;
    for (std::int32_t i = 0; i < chunks.UBound(); ++i) {
        Require(chunks[i].ends_with(del), "a chunk ends at a delimiter");
    }
    const bool twice = text[static_cast<std::size_t>(length) - 1] == del[0];
    Require(Joined(chunks, twice ? 1 : 0, u"") == text, "the chunks give the text");
}

/// The text to split is a view of either output.
void CheckHalves(const std::u16string& text, const std::u16string& del) {
    const std::size_t at = text.find(del);
    const bool isCut = at != text.npos;
    for (const bool ownsLeft : {true, false}) {
        std::u16string left = text, right = text;
        SplitLeftRight(ownsLeft ? left : right, del, left, right);
        Require(left == text.substr(0, at), "what stands before the delimiter, or all");
        Require(right == (isCut ? text.substr(at + del.size()) : text), "what follows it, or all");
    }
}

void CheckWideFields(const std::u16string& text, const std::u16string& del) {
    std::u16string rest = text + del;  // which ends the last field
    std::size_t end = 0;
    for (std::int16_t i = 1; i <= 20 && (end = rest.find(del)) != rest.npos; ++i) {
        Require(SplitStr(text, del, i) == rest.substr(0, end), "a field by its number");
        rest.erase(0, end + del.size());
    }
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    const std::u16string del = FromCodePage(input.ConsumeBytesAsString(2));
    if (del.size() < 2) return;
    const std::int32_t length = input.ConsumeIntegral<std::uint8_t>();
    const std::u16string text = RestAsText(input, del + u"ab");
    CheckFields(text, del.substr(0, 1));
    CheckChunks(text, del.substr(0, 1), length);
    CheckHalves(text, del);
    CheckHalves(text, del.substr(0, 1));
    CheckWideFields(text, del);
    StringArray parts;
    StrToArr(text, del, parts);
    ChunkStrToArr(text, parts, length, del);
}
