// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/CharacterBlock.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace halvek {

/// The positions of some characters in a text, from left to right, found a block at a time.
///
/// @code{.cpp}
/// CharacterScan bars(text, u'|');
/// for (std::size_t at; (at = bars.Next()) != CharacterScan<1>::kNone;) ...
/// @endcode
template <std::size_t kCharacters>
class CharacterScan {
  public:
    /// What Next returns when there is no further position.
    static constexpr std::size_t kNone = std::u16string_view::npos;

    /// @param text  the text to scan; it outlives the scan
    /// @param characters  the characters to look for
    template <class... Characters>
    explicit CharacterScan(std::u16string_view text, Characters... characters) noexcept
        : text_(text), characters_{characters...} {}

    /// The next position from 0; kNone when there is no further one.
    std::size_t Next() noexcept {
        while (mask_ == 0) {
            if (next_ >= text_.size()) return kNone;
            ReadBlock();
        }
        const std::size_t position = block_ + static_cast<std::size_t>(std::countr_zero(mask_));
        mask_ &= mask_ - 1;
        return position;
    }

    /// Skips some positions, or all when there are fewer.
    void Skip(std::size_t count) noexcept {
        while (true) {
            const auto here = static_cast<std::size_t>(std::popcount(mask_));
            if (here > count) break;
            count -= here;
            mask_ = 0;
            if (next_ >= text_.size()) return;
            ReadBlock();
        }
        for (; count > 0; --count) mask_ &= mask_ - 1;
    }

  private:
    void ReadBlock() noexcept {
        block_ = next_;
        next_ += kBlockLength;
        if (next_ <= text_.size()) {
            for (const char16_t character : characters_) {
                mask_ |= MaskOf(text_.data() + block_, character);
            }
            return;
        }
        for (std::size_t i = block_; i < text_.size(); ++i) {
            const bool found = std::ranges::find(characters_, text_[i]) != characters_.end();
            mask_ |= (found ? 1u : 0u) << (i - block_);
        }
    }

    std::u16string_view text_;
    std::array<char16_t, kCharacters> characters_;
    std::uint32_t mask_ = 0;  ///< the positions in the block not returned yet
    std::size_t block_ = 0;   ///< where the block starts
    std::size_t next_ = 0;    ///< where the block after it starts
};

/// The number of characters follows from the arguments.
template <class... Characters>
CharacterScan(std::u16string_view, Characters...) -> CharacterScan<sizeof...(Characters)>;

/// How often a character occurs.
inline std::size_t CountOf(std::u16string_view text, char16_t character) noexcept {
    // Counters of 16 bits, as wide as a character, let the compiler take eight at a time.
    constexpr std::size_t kMax = 0xFFFF;
    std::size_t count = 0;
    for (std::size_t start = 0; start < text.size(); start += kMax) {
        std::uint16_t part = 0;
        for (const char16_t c : text.substr(start, kMax)) {
            part = static_cast<std::uint16_t>(part + (c == character ? 1 : 0));
        }
        count += part;
    }
    return count;
}

/// How often two different characters stand side by side.
inline std::size_t CountOfPair(std::u16string_view text, char16_t first, char16_t second) noexcept {
    constexpr std::size_t kMax = 0xFFFF;
    std::size_t count = 0;
    for (std::size_t start = 0; start + 1 < text.size(); start += kMax) {
        const char16_t* const at = text.data() + start;
        const std::size_t length = std::min(kMax, text.size() - start - 1);
        std::uint16_t part = 0;
        for (std::size_t i = 0; i < length; ++i) {
            const bool isFirst = at[i] == first;
            const bool isSecond = at[i + 1] == second;
            part = static_cast<std::uint16_t>(part + (isFirst & isSecond));
        }
        count += part;
    }
    return count;
}

}  // namespace halvek
