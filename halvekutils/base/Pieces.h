#pragma once

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

        Iterator(TextIn rest, char16_t separator)
            : rest_(rest), length_(rest.find(separator)), separator_(separator) {}

        TextIn operator*() const { return rest_.substr(0, length_); }
        Iterator& operator++() {
            if (length_ == TextIn::npos) {
                ended_ = true;
            } else {
                rest_.remove_prefix(length_ + 1);
                length_ = rest_.find(separator_);
            }
            return *this;
        }
        void operator++(int) { ++*this; }
        friend bool operator==(const Iterator& at, std::default_sentinel_t) { return at.ended_; }

      private:
        TextIn rest_;
        std::size_t length_;
        char16_t separator_;
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
