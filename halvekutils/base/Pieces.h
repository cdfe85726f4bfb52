// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/CharacterScan.h>
#include <halvekutils/base/TextIn.h>

#include <array>
#include <cstddef>
#include <iterator>

namespace halvek {

/// The pieces of a text between the separators in it, as views: one more than there are separators.
///
/// @code{.cpp}
/// for (const TextIn piece : Pieces(u"A|B||", u'|')) ...  // A, B, empty, empty
/// @endcode
class Pieces {
  public:
    /// Steps from piece to piece.
    class Iterator {
      public:
        /// A piece.
        using value_type = TextIn;
        /// As standard iterators have it.
        using difference_type = std::ptrdiff_t;

        /// Stands at the first piece.
        Iterator(TextIn text, char16_t separator)
            : text_(text), separators_(text, separator), end_(separators_.Next()) {}

        /// The piece at this place.
        TextIn operator*() const { return text_.substr(start_, end_ - start_); }
        /// Goes on to the next piece.
        Iterator& operator++() {
            if (end_ == TextIn::npos) {
                ended_ = true;
            } else {
                start_ = end_ + 1;
                end_ = separators_.Next();
            }
            return *this;
        }
        /// The same, without a result.
        void operator++(int) { ++*this; }
        /// True after the last piece.
        friend bool operator==(const Iterator& at, std::default_sentinel_t) { return at.ended_; }

      private:
        TextIn text_;
        CharacterScan<1> separators_;
        std::size_t start_ = 0;
        std::size_t end_;
        bool ended_ = false;
    };

    /// @param text  the text to cut; it outlives the pieces
    /// @param separator  the character between two pieces
    Pieces(TextIn text, char16_t separator) : text_(text), separator_(separator) {}

    /// The first piece; there is always one.
    Iterator begin() const { return {text_, separator_}; }
    /// After the last piece.
    std::default_sentinel_t end() const { return {}; }

  private:
    TextIn text_;
    char16_t separator_;
};

/// Fills an array with the first pieces of a text. Returns how many pieces there are, or one more
/// than fit.
template <std::size_t kFields>
std::size_t CutInto(std::array<TextIn, kFields>& fields, TextIn text, char16_t separator) {
    std::size_t count = 0;
    for (const TextIn piece : Pieces(text, separator)) {
        if (count == kFields) return kFields + 1;
        fields[count++] = piece;
    }
    return count;
}

}  // namespace halvek
