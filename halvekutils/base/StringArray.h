// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace halvek {

/// A one-dimensional array of texts that keeps its lower and upper bound.
///
/// A new array is unallocated: it has no bounds and no elements, and asking for either throws
/// SubscriptOutOfRange, as does any index outside the bounds.
///
/// @code{.cpp}
/// StringArray colors(1, 16);
/// colors[1] = u"255";
/// @endcode
class HALVEK_EXPORT StringArray {
  public:
    StringArray() = default;
    /// Elements `lower` to `upper`, all empty. Throws SubscriptOutOfRange when upper < lower - 1.
    StringArray(std::int32_t lower, std::int32_t upper);
    /// The given texts as elements `lower` and up.
    StringArray(std::int32_t lower, std::vector<std::u16string> elements);

    /// False for a new array, which has neither bounds nor elements.
    bool IsAllocated() const noexcept { return allocated_; }
    /// The index of the first element. Throws SubscriptOutOfRange when unallocated.
    std::int32_t LBound() const;
    /// The index of the last element. Throws SubscriptOutOfRange when unallocated.
    std::int32_t UBound() const;

    /// The element at an index. Throws SubscriptOutOfRange.
    std::u16string& operator[](std::int32_t index) { return elements_[Offset(index)]; }
    const std::u16string& operator[](std::int32_t index) const { return elements_[Offset(index)]; }

    /// Adds an element at the end. Throws SubscriptOutOfRange when unallocated.
    void Append(std::u16string element);

    /// The first element, for loops; an unallocated array has none.
    auto begin() const noexcept { return elements_.begin(); }
    /// After the last element.
    auto end() const noexcept { return elements_.end(); }

    friend bool operator==(const StringArray&, const StringArray&) = default;

  private:
    std::size_t Offset(std::int32_t index) const;

    bool allocated_ = false;
    std::int32_t lower_ = 0;
    std::vector<std::u16string> elements_;
};

}  // namespace halvek
