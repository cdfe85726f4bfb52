#include <halvekutils/base/CaseFolding.h>

#include <algorithm>
#include <array>
#include <cstdint>

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

/// Up to four folded characters side by side.
std::uint64_t FoldedWord(std::u16string_view text) {
    std::uint64_t word = 0;
    for (const char16_t character : text) word = word << 16 | Folded(character);
    return word;
}

}  // namespace

bool EqualFolded(std::u16string_view left, std::u16string_view right) noexcept {
    return std::ranges::equal(
        left, right, [](char16_t a, char16_t b) { return a == b || Folded(a) == Folded(b); });
}

std::size_t HashFolded(std::u16string_view text) noexcept {
    constexpr std::size_t kWord = 4;
    std::uint64_t hash = text.size();
    const auto mix = [&hash](std::uint64_t word) {
        hash = (hash ^ word) * 0x9E3779B97F4A7C15;
        hash ^= hash >> 32;
    };
    for (; text.size() > kWord; text.remove_prefix(kWord)) mix(FoldedWord(text.substr(0, kWord)));
    mix(FoldedWord(text));
    return hash;
}

}  // namespace halvek
