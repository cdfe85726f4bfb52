// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>

#include <array>
#include <cstdint>
#include <cstring>

namespace halvek {

namespace {

constexpr auto kFolded = [] {
    std::array<char16_t, 0x180> folded{};
    for (std::size_t i = 0; i < folded.size(); ++i) folded[i] = FoldCase(static_cast<char16_t>(i));
    return folded;
}();

/// FoldCase by a table of the characters that it may change.
char16_t Folded(char16_t character) {
    return character < kFolded.size() ? kFolded[character] : character;
}

constexpr std::size_t kWordLength = 4;

/// Four characters side by side, folded one by one.
std::uint64_t FoldedOneByOne(std::uint64_t word) {
    std::array<char16_t, kWordLength> characters{};
    std::memcpy(characters.data(), &word, sizeof word);
    for (char16_t& character : characters) character = Folded(character);
    std::memcpy(&word, characters.data(), sizeof word);
    return word;
}

/// Four characters side by side, folded together when all are ASCII, as keys mostly are.
std::uint64_t FoldedWord(std::uint64_t word) {
    constexpr std::uint64_t kEach = 0x0001000100010001;
    if ((word & kEach * 0xFF80) != 0) return FoldedOneByOne(word);
    // Bit 7 of each character says whether it is at or after a letter.
    const std::uint64_t fromA = word + kEach * (0x80 - u'A');
    const std::uint64_t behindZ = word + kEach * (0x7F - u'Z');
    return word | (fromA & ~behindZ & kEach * 0x80) >> 2;  // 0x20 for each capital letter
}

std::uint64_t WordAt(const char16_t* text) {
    std::uint64_t word = 0;
    std::memcpy(&word, text, sizeof word);
    return word;
}

/// The last characters of a text, fewer than a word holds.
std::uint64_t LastWord(const char16_t* text, std::size_t length) {
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < length; ++i) word = word << 16 | text[i];
    return word;
}

bool SameFolded(std::uint64_t left, std::uint64_t right) {
    return left == right || FoldedWord(left) == FoldedWord(right);
}

}  // namespace

bool EqualFolded(std::u16string_view left, std::u16string_view right) noexcept {
    if (left.size() != right.size()) return false;
    const char16_t* a = left.data();
    const char16_t* b = right.data();
    std::size_t length = left.size();
    for (; length >= kWordLength; length -= kWordLength, a += kWordLength, b += kWordLength) {
        if (!SameFolded(WordAt(a), WordAt(b))) return false;
    }
    return SameFolded(LastWord(a, length), LastWord(b, length));
}

std::size_t HashFolded(std::u16string_view text) noexcept {
    std::uint64_t hash = text.size();
    const auto mix = [&hash](std::uint64_t word) {
        hash = (hash ^ FoldedWord(word)) * 0x9E3779B97F4A7C15;
        hash ^= hash >> 32;
    };
    const char16_t* at = text.data();
    std::size_t length = text.size();
    for (; length >= kWordLength; length -= kWordLength, at += kWordLength) mix(WordAt(at));
    mix(LastWord(at, length));
    return hash;
}

}  // namespace halvek
