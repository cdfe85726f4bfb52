// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Enumerator.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/KeyedCollection.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/refdata/PrinterDefinition.h>

#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>

namespace halvek {

/// The kinds of printers that a filtered collection leaves out.
struct PrinterFilter {
    bool excludeSpool = true;     ///< the entry with the identifier "S"
    bool excludeFile = false;     ///< those that print to a file
    bool excludeWindows = false;  ///< the workstation's
    bool excludeSerial = false;   ///< the server's, except the spool and the files
};

/// The printers that a user may choose, first the server's, then the workstation's; read-only to
/// the host.
///
/// Keys are a number followed by "KEY": from 0KEY in a collection that was built, from 1KEY in a
/// filtered one.
///
/// @code{.cpp}
/// for (const auto& printer : utils->GetPrintersCollectionFiltered()) {
///     list.add(printer->PrinterDescription());
/// }
/// @endcode
class HALVEK_EXPORT PrintersCollection : public std::enable_shared_from_this<PrintersCollection> {
  public:
    ~PrintersCollection();

    /// The printer at a position from 1. Throws SubscriptOutOfRange.
    std::shared_ptr<PrinterDefinition> Item(std::int32_t position) const;

    /// The printer under a key, letter case ignored. Throws InvalidArgument for an unknown key.
    std::shared_ptr<PrinterDefinition> Item(TextIn key) const;

    /// How many printers there are.
    std::int32_t Count() const;

    /// The first printer, for a loop over the shared pointer, which holds the collection. A loop
    /// over null does nothing.
    friend Enumerator<const PrintersCollection> begin(
        std::shared_ptr<const PrintersCollection> collection) {
        return Enumerator(std::move(collection));
    }
    /// After the last printer.
    friend std::default_sentinel_t end(const std::shared_ptr<const PrintersCollection>&) {
        return {};
    }

    void begin() const = delete;  ///< loop over the shared pointer: `*pointer` holds nothing
    void end() const = delete;    ///< the same

    /// Copies of the printers that pass the filter, in their order. The spool, the entry with the
    /// identifier "S", does not count as a serial printer, even when its type says so.
    std::shared_ptr<PrintersCollection> Filtered(const PrinterFilter& filter) const;

  private:
    friend struct CollectionBuilder;

    HALVEK_HIDDEN PrintersCollection();
    HALVEK_HIDDEN static std::shared_ptr<PrintersCollection> CreateEmpty();
    HALVEK_HIDDEN void Add(PrinterFields fields, std::int32_t number);

    KeyedCollection<PrinterDefinition> printers_;
};

}  // namespace halvek
