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

/// A text with its delimiter appended, so that the last field needs no closing one. A delimiter of
/// one character ends the last field just where the text ends and needs no copy for that.
class ClosedText {
  public:
    ClosedText(TextIn text, TextIn delim) : view_(text) {
        if (delim.size() < 2) return;
        closed_.reserve(text.size() + delim.size());
        closed_.append(text).append(delim);
        view_ = closed_;
    }
    ClosedText(const ClosedText&) = delete;
    ClosedText& operator=(const ClosedText&) = delete;

    std::u16string_view View() const { return view_; }

  private:
    std::u16string closed_;
    std::u16string_view view_;
};

/// The part of a chunk up to its last delimiter, the delimiter included; empty when there is none.
std::u16string_view UpToLastDelimiter(std::u16string_view chunk, std::u16string_view del) {
    if (EndsWithWhole(chunk, del)) return chunk;
    const std::size_t last = chunk.rfind(del);
    return last == kNone ? std::u16string_view() : chunk.substr(0, last + del.size());
}

/// Cuts the text into pieces; false when a chunk without a delimiter ends the work early.
bool CutIntoChunks(std::u16string_view text, std::size_t length, std::u16string_view del,
                   std::vector<std::u16string>& pieces) {
    const std::u16string_view first = UpToLastDelimiter(text.substr(0, length), del);
    pieces.emplace_back(first);
    if (first.empty()) return false;
    // A first chunk that ends in its delimiter as it stands is stored twice: callers count on it.
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
        const ClosedText closed(strSplit, delim);
        const std::u16string_view text = closed.View();
        std::size_t start = 0;
        for (std::int16_t field = 1;; ++field) {
            const std::size_t end = text.find(delim, start);
            if (end == kNone && (delim.size() > 1 || field != intNum)) return {};
            if (field == intNum) return std::u16string(text.substr(start, end - start));
            start = end + delim.size();
        }
    });
}

bool StrToArr(TextIn str, TextIn del, StringArray& arr) {
    return Quietly(false, [&] {
        const ClosedText closed(str, EndsWithWhole(str, del) ? TextIn() : del);
        const std::u16string_view text = closed.View();
        const bool openEnd = del.size() == 1 && !EndsWithWhole(text, del);
        const std::int32_t count = CountInstances(TextIn(text), del) + (openEnd ? 1 : 0);
        std::vector<std::u16string> fields;
        fields.reserve(static_cast<std::size_t>(count) + 1);
        fields.emplace_back();
        std::size_t start = 0;
        for (std::int32_t i = 1; i <= count; ++i) {
            const std::size_t end = text.find(del, start);
            fields.emplace_back(text.substr(start, end - start));
            start = end + 1;  // by one character, also past a longer delimiter
        }
        arr = StringArray(0, std::move(fields));
        return true;
    });
}

std::int32_t CountInstances(TextIn strSearchIn, TextIn strSearchFor) {
    if (strSearchFor.empty()) return 0;
    if (strSearchFor.size() == 1) {
        return static_cast<std::int32_t>(std::ranges::count(strSearchIn, strSearchFor.front()));
    }
    std::int32_t count = 0;
    std::size_t at = 0;
    while ((at = strSearchIn.find(strSearchFor, at)) != kNone) {
        ++count;
        at += strSearchFor.size();
    }
    return count;
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
    // Both parts before either is written: the text may be a view of an output.
    std::u16string left(strSplit.substr(0, at));
    std::u16string right(strSplit.substr(at + delimiter.size()));
    strLeft = std::move(left);
    strRight = std::move(right);
}

bool ExistsInColl(const std::shared_ptr<Fetchable>& coll, TextIn key) {
    return Quietly(false, [&] {
        if (coll == nullptr || coll->Count() < 1) return false;
        coll->Fetch(key);
        return true;
    });
}

}  // namespace halvek
