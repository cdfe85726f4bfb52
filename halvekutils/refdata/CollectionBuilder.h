// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/refdata/CodesCollection.h>
#include <halvekutils/refdata/PrintersCollection.h>
#include <halvekutils/refdata/SecurityItemsCollection.h>

#include <cstdint>
#include <memory>
#include <utility>

namespace halvek {

/// Makes and fills the collections that hosts only read; no other class may. This header is not
/// installed.
struct CollectionBuilder {
    /// A collection without definitions.
    static std::shared_ptr<CodesCollection> Codes() { return CodesCollection::CreateEmpty(); }

    /// Adds the definitions of a codes data text. The first of two equal keys wins; the second is
    /// logged. A definition without a key can be found by position only.
    /// @param remarks  hears what the text holds besides; may be null
    static void Add(CodesCollection& codes, TextIn codesData, Services& services,
                    Remarks* remarks = nullptr) {
        codes.AddRecords(codesData, services, remarks);
    }

    /// A collection without items.
    /// @param services  the session whose log and switches look-ups use; outlives the collection
    static std::shared_ptr<SecurityItemsCollection> SecurityItems(Services& services) {
        return SecurityItemsCollection::CreateEmpty(services);
    }

    /// Adds the items of a security data text. The text "***" adds none and switches full access
    /// on; any other text switches it off.
    ///
    /// Items are separated by the character of code 230; the last character of each is its rights
    /// digit. The first of two equal keys wins; the second is logged.
    /// @param remarks  hears what the text holds besides; may be null
    static void Add(SecurityItemsCollection& items, TextIn securityData,
                    Remarks* remarks = nullptr) {
        items.AddItems(securityData, remarks);
    }

    /// True while full access is on.
    static bool HasFullAccess() noexcept { return SecurityItemsCollection::HasFullAccess(); }

    /// Switches full access off for all collections of the process; rights that an item already has
    /// stay.
    static void EndFullAccess() noexcept { SecurityItemsCollection::EndFullAccess(); }

    /// A collection without printers.
    static std::shared_ptr<PrintersCollection> Printers() {
        return PrintersCollection::CreateEmpty();
    }

    /// Adds a printer under the key of a number: 7 stands for "7KEY". Throws DuplicateKey.
    static void Add(PrintersCollection& printers, PrinterFields fields, std::int32_t number) {
        printers.Add(std::move(fields), number);
    }
};

}  // namespace halvek
