// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Enumerator.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/KeyedCollection.h>
#include <halvekutils/base/ObjectStore.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/refdata/SecurityItem.h>

#include <cstdint>
#include <iterator>
#include <memory>

namespace halvek {

class Remarks;
class Services;

/// The signed-in user's rights, as the server described them; read-only to the host.
///
/// A key that the server did not send is not a fault: its first look-up adds an item without
/// rights, which later look-ups find. While full access is on, every look-up grants all rights to
/// the item that it returns, in old collections too.
///
/// @code{.cpp}
/// saveButton.setEnabled(utils->GetSecurityItemsCollection()->Item(u"PATIENTS")->AllowModify());
/// @endcode
class HALVEK_EXPORT SecurityItemsCollection
    : public std::enable_shared_from_this<SecurityItemsCollection> {
  public:
    ~SecurityItemsCollection();

    /// The item at a position from 1.
    ///
    /// With full access its ItemKey becomes the position as text. A position that does not exist
    /// adds an item, under the empty key or, with full access, under the position as text. Throws
    /// DuplicateKey when the collection has this key already.
    std::shared_ptr<SecurityItem> Item(std::int32_t position);

    /// The item under a key, letter case ignored; a missing one is added.
    ///
    /// With full access its ItemKey becomes the given key. Without it a missing key is logged, with
    /// a beep, in debug mode or when the special mode contains "check security".
    std::shared_ptr<SecurityItem> Item(TextIn key);

    /// How many items there are, including those that look-ups have added.
    std::int32_t Count() const;

    /// The first item, for a loop over the shared pointer, which holds the collection. A loop looks
    /// nothing up and so grants nothing; one over null does nothing.
    friend Enumerator<const KeyedCollection<SecurityItem>> begin(
        const std::shared_ptr<const SecurityItemsCollection>& collection) {
        // Holds the collection, but steps through its store: Item would grant rights.
        const auto* const items = collection == nullptr ? nullptr : &collection->items_;
        return Enumerator(std::shared_ptr<const KeyedCollection<SecurityItem>>(collection, items));
    }
    /// After the last item.
    friend std::default_sentinel_t end(const std::shared_ptr<const SecurityItemsCollection>&) {
        return {};
    }

    void begin() const = delete;  ///< loop over the shared pointer: `*pointer` holds nothing
    void end() const = delete;    ///< the same

  private:
    friend struct CollectionBuilder;
    struct StoredItem : SecurityItem {};

    HALVEK_HIDDEN explicit SecurityItemsCollection(Services& services);
    HALVEK_HIDDEN static std::shared_ptr<SecurityItemsCollection> CreateEmpty(Services& services);
    HALVEK_HIDDEN static void EndFullAccess() noexcept;
    HALVEK_HIDDEN static bool HasFullAccess() noexcept;
    HALVEK_HIDDEN void AddItems(TextIn securityData, Remarks* remarks);
    HALVEK_HIDDEN void MakeRoomFor(TextIn securityData);
    HALVEK_HIDDEN void Add(TextIn piece, Remarks* remarks);
    HALVEK_HIDDEN void ReportMissing(TextIn key);

    Services& services_;
    ObjectStore<StoredItem> store_;
    KeyedCollection<SecurityItem> items_;
};

}  // namespace halvek
