// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Enumerator.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/Fetchable.h>
#include <halvekutils/base/KeyedCollection.h>
#include <halvekutils/base/ObjectStore.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/refdata/SecurityItem.h>

#include <cstdint>
#include <iterator>
#include <memory>

namespace halvek {

/// The signed-in user's rights, as the server described them; read-only to the host.
///
/// A key that the server did not send is no fault: its first look-up adds an item without rights,
/// which later look-ups find. While full access is on, every look-up, in old collections too,
/// grants all rights to the item that it returns.
///
///     saveButton.setEnabled(utils->GetSecurityItemsCollection()->Item(u"PATIENTS")->AllowModify());
class HALVEK_EXPORT SecurityItemsCollection
    : public Fetchable,
      public std::enable_shared_from_this<SecurityItemsCollection> {
  public:
    /// A collection without items.
    /// @param services  the session whose log and switches look-ups use; outlives the collection
    static std::shared_ptr<SecurityItemsCollection> CreateEmpty(Services& services);
    ~SecurityItemsCollection() override;

    /// Switches full access off for all collections of the process; what was granted to an item
    /// before stays.
    static void EndFullAccess() noexcept;

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

    /// How many items there are, those that look-ups have added included.
    std::int32_t Count() const override;
    void Fetch(TextIn key) override;

    /// Steps through the items as they are: a loop looks nothing up and so grants nothing.
    Enumerator<const KeyedCollection<SecurityItem>> begin() const;
    /// Behind the last item.
    std::default_sentinel_t end() const { return {}; }

    /// Adds the items of a security data text. Exactly "***" has none and switches full access on;
    /// any other text switches it off.
    ///
    /// Items are parted by the character of code 230; the last character of each is its rights
    /// digit. The first of two equal keys wins; the second is logged.
    void AddItems(TextIn securityData);

  private:
    explicit SecurityItemsCollection(Services& services);
    void MakeRoomFor(TextIn securityData);
    void Add(TextIn key, char16_t rightsDigit);
    void ReportMissing(TextIn key);

    Services& services_;
    ObjectStore<SecurityItem> store_;
    KeyedCollection<SecurityItem> items_;
};

}  // namespace halvek
