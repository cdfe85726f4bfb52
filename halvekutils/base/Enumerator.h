// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <type_traits>
#include <utility>

namespace halvek {

/// Steps through a collection by position and keeps the collection alive meanwhile, so that a loop
/// survives a rebuild of the library's current collection and sees items added behind it.
template <class Collection>
class Enumerator {
  public:
    using value_type =
        std::remove_cvref_t<decltype(std::declval<Collection&>().Item(std::int32_t{1}))>;
    using difference_type = std::ptrdiff_t;

    Enumerator() = default;
    explicit Enumerator(std::shared_ptr<Collection> collection)
        : collection_(std::move(collection)) {}

    value_type operator*() const { return collection_->Item(position_); }
    Enumerator& operator++() {
        ++position_;
        return *this;
    }
    void operator++(int) { ++position_; }
    friend bool operator==(const Enumerator& at, std::default_sentinel_t) {
        return at.position_ > at.collection_->Count();
    }

  private:
    std::shared_ptr<Collection> collection_;
    std::int32_t position_ = 1;
};

}  // namespace halvek
