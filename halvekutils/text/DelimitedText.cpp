// SPDX-License-Identifier: MIT
#include <halvekutils/base/CharacterScan.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/text/DelimitedText.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace halvek {

namespace {

constexpr auto kNone = std::u16string_view::npos;

bool EndsWithWhole(std::u16string_view text, std::u16string_view del) {
    return !text.empty() && text.substr(text.size() - 1) == del;
}

std::size_t CountAll(std::u16string_view text, std::u16string_view wanted) {
    if (wanted.empty()) return 0;
    if (wanted.size() == 1) return CountOf(text, wanted.front());
    if (wanted.size() == 2 && wanted[0] != wanted[1])
        return CountOfPair(text, wanted[0], wanted[1]);
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find(wanted, at)) != kNone; at += wanted.size()) ++count;
    return count;
}

/// A text with its delimiter appended, so that the last field ends in one too.
std::u16string Closed(std::u16string_view text, std::u16string_view delim) {
    std::u16string closed;
    closed.reserve(text.size() + delim.size());
    return closed.append(text).append(delim);
}

std::u16string FieldOf(std::u16string_view text, char16_t delim, std::int16_t number) {
    CharacterScan delimiters(text, delim);
    std::size_t start = 0;
    if (number > 1) {
        delimiters.Skip(static_cast<std::size_t>(number) - 2);
        const std::size_t before = delimiters.Next();
        if (before == kNone) return {};
        start = before + 1;
    }
    return std::u16string(text.substr(start, delimiters.Next() - start));
}

std::u16string FieldOf(std::u16string_view text, std::u16string_view delim, std::int16_t number) {
    const std::u16string closed = Closed(text, delim);
    std::size_t start = 0;
    for (std::int16_t field = 1;; ++field) {
        const std::size_t end = closed.find(delim, start);
        if (end == kNone) return {};
        if (field == number) return closed.substr(start, end - start);
        start = end + delim.size();
    }
}

std::vector<std::u16string> Fields(std::u16string_view text, char16_t delim) {
    const bool openEnd = text.empty() || text.back() != delim;
    const std::size_t count = CountOf(text, delim) + (openEnd ? 1 : 0);
    std::vector<std::u16string> fields;
    fields.reserve(count + 1);
    fields.emplace_back();
    CharacterScan delimiters(text, delim);
    std::size_t start = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t end = delimiters.Next();
        fields.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return fields;
}

std::vector<std::u16string> Fields(std::u16string_view text, std::u16string_view delim) {
    const std::u16string closed = Closed(text, delim);
    std::vector<std::u16string> fields(1);
    if (delim.empty()) return fields;
    const std::u16string_view view = closed;
    std::size_t start = 0;
    for (std::size_t i = CountAll(view, delim); i > 0; --i) {
        const std::size_t end = view.find(delim, start);
        fields.emplace_back(view.substr(start, end - start));
        start = end + 1;  // by one character: the rest of the delimiter begins the next field
    }
    return fields;
}

/// The part of a chunk up to its last delimiter, the delimiter included; empty when there is none.
std::u16string_view UpToLastDelimiter(std::u16string_view chunk, std::u16string_view del) {
    if (EndsWithWhole(chunk, del)) return chunk;
    const std::size_t last = chunk.rfind(del);
    return last == kNone ? std::u16string_view() : chunk.substr(0, last + del.size());
}

/// Cuts the text into pieces; stops and returns false at a chunk without a delimiter.
bool CutIntoChunks(std::u16string_view text, std::size_t length, std::u16string_view del,
                   std::vector<std::u16string>& pieces) {
    const std::u16string_view first = UpToLastDelimiter(text.substr(0, length), del);
    pieces.emplace_back(first);
    if (first.empty()) return false;
    // A first chunk that already ends in its delimiter is stored twice: callers rely on it.
    std::size_t start = EndsWithWhole(text.substr(0, length), del) ? 0 : first.size();
    while (start + 1 + length <= text.size()) {
        const std::u16string_view piece = UpToLastDelimiter(text.substr(start, length), del);
        if (piece.empty()) return false;
        pieces.emplace_back(piece);
        start += piece.size();
    }
    pieces.emplace_back(text.substr(start));
    return true;
}

}  // namespace

std::u16string SplitStr(TextIn strSplit, TextIn delim, std::int16_t intNum) {
    return Quietly(std::u16string(), [&]() -> std::u16string {
        if (intNum < 1 || delim.empty()) return {};
        if (delim.size() == 1) return FieldOf(strSplit, delim.front(), intNum);
        return FieldOf(strSplit, delim, intNum);
    });
}

bool StrToArr(TextIn str, TextIn del, StringArray& arr) {
    return Quietly(false, [&] {
        arr = StringArray(0, del.size() == 1 ? Fields(str, del.front()) : Fields(str, del));
        return true;
    });
}

std::int32_t CountInstances(TextIn strSearchIn, TextIn strSearchFor) {
    return static_cast<std::int32_t>(CountAll(strSearchIn, strSearchFor));
}

bool ChunkStrToArr(TextIn str, StringArray& arr, std::int32_t chunkLength, TextIn del) {
    const auto log = [](TextIn line) { Services::Current().LogError(line); };
    return Guarded(OnFault::Beep, u"ERR in HalvekUtils.ChunkStrToArr   ", log, false, [&] {
        if (str.empty() || chunkLength < 1 || del.empty()) return false;
        const auto length = static_cast<std::size_t>(chunkLength);
        if (length >= str.size()) return false;
        std::vector<std::u16string> pieces;
        const bool whole = CutIntoChunks(str, length, del, pieces);
        arr = StringArray(0, std::move(pieces));
        return whole;
    });
}

void SplitLeftRight(TextIn strSplit, TextIn delimiter, std::u16string& strLeft,
                    std::u16string& strRight) {
    const std::size_t at = strSplit.find(delimiter);
    if (at == kNone) return;
    // Both parts are copied before either is written: the text may be a view of an output.
    std::u16string left(strSplit.substr(0, at));
    std::u16string right(strSplit.substr(at + delimiter.size()));
    strLeft = std::move(left);
    strRight = std::move(right);
}

}  // namespace halvek
