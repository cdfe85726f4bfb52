// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/CharacterScan.h>
#include <halvekutils/base/TextIn.h>

#include <cstddef>
#include <iterator>

namespace halvek {

/// The pieces of a text between the separators in it, as views: one more than there are separators.
///
///     for (const TextIn piece : Pieces(u"A|B||", u'|')) ...  // A, B, empty, empty
class Pieces {
  public:
    class Iterator {
      public:
        using value_type = TextIn;
        using difference_type = std::ptrdiff_t;

        Iterator(TextIn text, char16_t separator)
            : text_(text), separators_(text, separator), end_(separators_.Next()) {}

        TextIn operator*() const { return text_.substr(start_, end_ - start_); }
        Iterator& operator++() {
            if (end_ == TextIn::npos) {
                ended_ = true;
            } else {
                start_ = end_ + 1;
                end_ = separators_.Next();
            }
            return *this;
        }
        void operator++(int) { ++*this; }
        friend bool operator==(const Iterator& at, std::default_sentinel_t) { return at.ended_; }

      private:
        TextIn text_;
        CharacterScan<1> separators_;
        std::size_t start_ = 0;
        std::size_t end_;
        bool ended_ = false;
    };

    Pieces(TextIn text, char16_t separator) : text_(text), separator_(separator) {}

    Iterator begin() const { return {text_, separator_}; }
    std::default_sentinel_t end() const { return {}; }

  private:
    TextIn text_;
    char16_t separator_;
};

}  // namespace halvek
