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
    StringArray fields;
    Require(StrToArr(text, del, fields), "every text can be cut");
    Require(fields[0].empty(), "element 0 stays empty");
    const bool closed = !text.empty() && text.ends_with(del);
    Require(Joined(fields, 1, del) == (closed ? text : text + del), "the fields give the text");
    for (std::int32_t i = 1; i <= std::min(fields.UBound(), 20); ++i) {
        Require(SplitStr(text, del, static_cast<std::int16_t>(i)) == fields[i],
                "a field by its number is the same field");
    }
}

void CheckChunks(const std::u16string& text, const std::u16string& del, std::int32_t length) {
    StringArray chunks;
    if (!ChunkStrToArr(text, chunks, length, del)) return;
    for (std::int32_t i = 0; i < chunks.UBound(); ++i) {
        Require(chunks[i].ends_with(del), "a chunk ends at a delimiter");
    }
    const bool twice = text[static_cast<std::size_t>(length) - 1] == del[0];
    Require(Joined(chunks, twice ? 1 : 0, u"") == text, "the chunks give the text");
}

/// The first fields between delimiters of several characters.
std::vector<std::u16string> Split(std::u16string text, const std::u16string& del) {
    std::vector<std::u16string> fields;
    text += del;  // which ends the last field
    for (std::size_t start = 0, end = 0; fields.size() < 20; start = end + del.size()) {
        end = text.find(del, start);
        if (end == text.npos) break;
        fields.push_back(text.substr(start, end - start));
    }
    return fields;
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    const std::u16string del = FromCodePage(input.ConsumeBytesAsString(2));
    if (del.size() < 2) return;
    const std::int32_t length = input.ConsumeIntegral<std::uint8_t>();
    const std::u16string text = RestAsText(input, del + u"ab");
    CheckFields(text, del.substr(0, 1));
    CheckChunks(text, del.substr(0, 1), length);
    StringArray fields;
    StrToArr(text, del, fields);
    ChunkStrToArr(text, fields, length, del);
    for (std::int16_t i = 0; const std::u16string& field : Split(text, del)) {
        Require(SplitStr(text, del, ++i) == field, "a field between longer delimiters");
    }
}
