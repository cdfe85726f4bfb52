// SPDX-License-Identifier: MIT
#include <halvekutils/base/CharacterScan.h>
#include <halvekutils/selection/ChosenCodes.h>
#include <halvekutils/selection/EachCode.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace halvek {

namespace {

constexpr auto kNone = std::u16string_view::npos;

bool HoldsComma(std::u16string_view code) {
    return code.find(u',') != kNone;
}

void Append(std::u16string& codes, std::u16string_view code) {
    const std::size_t comma = codes.empty() ? 0 : 1;
    codes.reserve(codes.size() + comma + code.size());  // both or neither
    codes.append(comma, u',').append(code);
}

/// The codes of a text, joined again without one.
std::u16string JoinedWithout(std::u16string_view text, std::u16string_view leftOut) {
    std::u16string codes;
    codes.reserve(text.size());
    ForEachCode(text, [&](std::u16string_view code) {
        if (!code.empty() && code != leftOut) Append(codes, code);
        return true;
    });
    return codes;
}

/// True when two texts are the same; fast for texts as short as codes.
bool IsSame(std::u16string_view left, std::u16string_view right) {
    constexpr std::size_t kWord = 4;
    if (left.size() != right.size()) return false;
    if (left.size() < kWord) return left == right;
    // The ends first: they overlap where the middle is short.
    const std::size_t end = left.size() - kWord;
    return std::memcmp(left.data(), right.data(), kWord * sizeof(char16_t)) == 0 &&
           std::memcmp(left.data() + end, right.data() + end, kWord * sizeof(char16_t)) == 0 &&
           (left.size() <= 2 * kWord || left == right);
}

struct CodePlace {
    std::size_t start = kNone;
    bool twice = false;
};

/// Where a code is in a text of codes joined without blanks.
CodePlace PlaceOfCode(std::u16string_view codes, std::u16string_view code) {
    CodePlace place;
    CharacterScan commas(codes, u',');
    for (std::size_t start = 0; start <= codes.size();) {
        const std::size_t end = std::min(commas.Next(), codes.size());
        if (IsSame({codes.data() + start, end - start}, code)) {
            place.twice = place.start != kNone;
            if (place.twice) break;
            place.start = start;
        }
        start = end + 1;
    }
    return place;
}

/// Removes a code that occurs once from joined codes, with one of the commas beside it.
void Erase(std::u16string& codes, std::size_t start, std::size_t length) {
    if (start + length < codes.size()) {
        codes.erase(start, length + 1);
    } else {
        codes.erase(start - std::min<std::size_t>(start, 1));
    }
}

}  // namespace

bool ChosenCodes::Add(std::u16string_view code) {
    const bool heldText = !box_.text.empty();
    if (!boxIsChoice_) {
        std::u16string codes = JoinedWithout(box_.text, {});
        codes.reserve(codes.size() + 1 + code.size());
        SetText(std::move(codes));
    }
    Append(box_.text, code);
    hasComma_ = hasComma_ || HoldsComma(code);
    TakeBox();
    return heldText && box_.text.empty();
}

bool ChosenCodes::Remove(std::u16string_view code) {
    const bool isJoined = boxIsChoice_ && !hasComma_;
    const CodePlace place = isJoined ? PlaceOfCode(box_.text, code) : CodePlace();
    if (place.start == kNone || place.twice) return SetText(JoinedWithout(box_.text, code));
    Erase(box_.text, place.start, code.size());
    TakeBox();
    return box_.text.empty();
}

bool ChosenCodes::Replace(const std::vector<std::u16string_view>& codes) {
    std::size_t length = 0;
    for (const std::u16string_view code : codes) length += code.size() + 1;
    std::u16string joined;
    joined.reserve(length);
    for (const std::u16string_view code : codes) {
        Append(joined, code);
        hasComma_ = hasComma_ || HoldsComma(code);
    }
    return SetText(std::move(joined));
}

bool ChosenCodes::SetText(std::u16string codes) {
    const bool emptied = codes.empty() && !box_.text.empty();
    box_.text = std::move(codes);
    TakeBox();
    return emptied;
}

void ChosenCodes::TakeBox() {
    boxIsChoice_ = true;
    choice_ = {};
    if (box_.text.ends_with(u',')) box_.text.pop_back();  // a code that ends in one
    Select(box_.text.size(), 0);
}

void ChosenCodes::Type(std::u16string text) {
    if (boxIsChoice_) choice_ = std::move(box_.text);
    boxIsChoice_ = false;
    box_.text = std::move(text);
}

void ChosenCodes::MoveCaret(std::int32_t caret, std::int32_t selected) {
    const auto size = static_cast<std::int32_t>(box_.text.size());
    box_.caret = std::clamp(caret, 0, size);
    box_.selected = std::clamp(selected, 0, size - box_.caret);
}

void ChosenCodes::Select(std::size_t start, std::size_t length) {
    box_.caret = static_cast<std::int32_t>(start);
    box_.selected = static_cast<std::int32_t>(std::min(length, box_.text.size() - start));
    ++boxVersion_;
}

void ChosenCodes::SelectCode(std::u16string_view code) {
    const std::u16string_view text = box_.text;
    const bool closed = text.ends_with(u',');
    std::u16string sought = u',' + std::u16string(code);
    if (closed) sought += u',';
    const std::size_t comma = text.find(sought);
    const std::size_t start = comma == kNone ? 0 : comma + 1;
    const bool withComma = closed || start + code.size() + 1 <= text.size();
    Select(start, code.size() + (withComma ? 1 : 0));
}

void ChosenCodes::StartCheck() {
    choice_.reserve(box_.text.size());
    Clear();
}

void ChosenCodes::Clear() {
    choice_.clear();
    boxIsChoice_ = box_.text.empty();
}

void ChosenCodes::Accept(std::u16string_view code) {
    Append(boxIsChoice_ ? box_.text : choice_, code);
}

void ChosenCodes::EndCheck() {
    if (choice_ != box_.text) return;
    choice_ = {};
    boxIsChoice_ = true;
}

}  // namespace halvek
