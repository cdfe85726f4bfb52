// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>

namespace halvek {

/// What a keyed collection offers to a test for a key: its size and a real fetch.
class HALVEK_EXPORT Fetchable {
  public:
    virtual ~Fetchable();

    /// How many items the collection holds.
    virtual std::int32_t Count() const = 0;

    /// Fetches the item under a key as Item(key) does, with all that this brings about; throws what
    /// Item(key) throws.
    virtual void Fetch(TextIn key) = 0;

  protected:
    Fetchable() = default;
    Fetchable(const Fetchable&) = default;
    Fetchable& operator=(const Fetchable&) = default;
};

}  // namespace halvek
