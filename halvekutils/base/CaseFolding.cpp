#include <halvekutils/base/CaseFolding.h>

#include <algorithm>
#include <cstdint>

namespace halvek {

bool EqualFolded(std::u16string_view left, std::u16string_view right) noexcept {
    return std::ranges::equal(left, right, {}, FoldCase, FoldCase);
}

std::size_t HashFolded(std::u16string_view text) noexcept {
    std::uint64_t hash = 0xCBF29CE484222325;  // FNV-1a over 16-bit units
    for (const char16_t character : text) hash = (hash ^ FoldCase(character)) * 0x100000001B3;
    return hash ^ hash >> 32;
}

}  // namespace halvek
