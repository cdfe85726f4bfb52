// SPDX-License-Identifier: MIT
#include "fuzz/FuzzText.h"

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
    for (std::int32_t i = 1; i <= std::min(fields.UBound(), 50); ++i) {
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 3) return 0;
    const std::u16string del = FuzzText(data, 1);
    const std::u16string text = FuzzText(data + 2, size - 2);
    CheckFields(text, del);
    CheckChunks(text, del, data[1]);
    StringArray fields;
    StrToArr(text, FuzzText(data, 2), fields);
    ChunkStrToArr(text, fields, data[1], FuzzText(data, 2));
    return 0;
}
