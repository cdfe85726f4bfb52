// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <string>

namespace halvek {

/// A protected item (a screen, a function or a report) and what the signed-in user may do with it.
///
/// Only SecurityItemsCollection makes one. A right once granted to an item is never revoked.
class HALVEK_EXPORT SecurityItem {
  public:
    ~SecurityItem();

    /// Always empty: the server sends no groups.
    std::u16string GroupName() const { return {}; }

    /// True when the user may add.
    bool AllowAdd() const { return (rights_ & kAdd) != 0; }
    /// True when the user may delete.
    bool AllowDelete() const { return (rights_ & kDelete) != 0; }
    /// True when the user may change what is there.
    bool AllowModify() const { return (rights_ & kModify) != 0; }
    /// True when the user may see it.
    bool AllowRead() const { return (rights_ & kRead) != 0; }

    /// The item's key. Setting it does not change the key under which a collection holds the item.
    void ItemKey(TextIn value) { itemKey_ = value; }
    std::u16string ItemKey() const { return itemKey_; }

    /// Always empty: the server sends no descriptions.
    std::u16string Description() const { return {}; }

  private:
    friend class SecurityItemsCollection;

    enum Right : std::uint8_t { kDelete = 1, kModify = 2, kAdd = 4, kRead = 8 };

    HALVEK_HIDDEN SecurityItem();

    /// Stores the key and adds the rights of one hexadecimal digit, in either letter case, to those
    /// that the item has. Any other character adds none.
    HALVEK_HIDDEN void Init(TextIn itemKey, char16_t rightsDigit);

    std::u16string itemKey_;
    std::uint8_t rights_ = 0;
};

}  // namespace halvek
