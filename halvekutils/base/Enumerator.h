// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <type_traits>
#include <utility>

namespace halvek {

/// Steps through a collection by position and keeps the collection alive, so that a loop survives a
/// rebuild of the library's current collection and sees items added at its end. One without a
/// collection is at its end.
template <class Collection>
class Enumerator {
  public:
    /// What a loop variable holds.
    using value_type =
        std::remove_cvref_t<decltype(std::declval<Collection&>().Item(std::int32_t{1}))>;
    /// As standard iterators have it.
    using difference_type = std::ptrdiff_t;

    Enumerator() = default;
    /// Starts at the first item.
    explicit Enumerator(std::shared_ptr<Collection> collection)
        : collection_(std::move(collection)) {}

    /// The item at this place.
    value_type operator*() const { return collection_->Item(position_); }
    /// Goes on to the next item.
    Enumerator& operator++() {
        ++position_;
        return *this;
    }
    /// The same, without a result.
    void operator++(int) { ++position_; }
    /// True after the last item that the collection has at this moment.
    friend bool operator==(const Enumerator& at, std::default_sentinel_t) {
        return at.collection_ == nullptr || at.position_ > at.collection_->Count();
    }

  private:
    std::shared_ptr<Collection> collection_;
    std::int32_t position_ = 1;
};

}  // namespace halvek
