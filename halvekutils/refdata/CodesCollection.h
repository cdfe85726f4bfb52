// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Enumerator.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/KeyedCollection.h>
#include <halvekutils/base/ObjectStore.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/refdata/CodeDefinition.h>

#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>

namespace halvek {

class Services;

/// The code tables that the server described, in its order; read-only to the host.
///
/// @code{.cpp}
/// for (const auto& code : utils->GetCodesCollection()) list.add(code->CodeDescription());
/// bool lookup = utils->GetCodesCollection()->Item(u"INS")->CodeHasLookup();
/// @endcode
class HALVEK_EXPORT CodesCollection : public std::enable_shared_from_this<CodesCollection> {
  public:
    ~CodesCollection();

    /// The definition at a position from 1. Throws SubscriptOutOfRange.
    std::shared_ptr<CodeDefinition> Item(std::int32_t position) const;

    /// The definition under a key, letter case ignored. Throws InvalidArgument for an unknown key.
    std::shared_ptr<CodeDefinition> Item(TextIn key) const;

    /// How many definitions there are.
    std::int32_t Count() const;

    /// The first definition, for a loop over the shared pointer, which holds the collection. A loop
    /// over null does nothing.
    friend Enumerator<const CodesCollection> begin(
        std::shared_ptr<const CodesCollection> collection) {
        return Enumerator(std::move(collection));
    }
    /// After the last definition.
    friend std::default_sentinel_t end(const std::shared_ptr<const CodesCollection>&) { return {}; }

    void begin() const = delete;  ///< loop over the shared pointer: `*pointer` holds nothing
    void end() const = delete;    ///< the same

  private:
    friend struct CollectionBuilder;
    struct Definition : CodeDefinition {};

    HALVEK_HIDDEN CodesCollection();
    HALVEK_HIDDEN static std::shared_ptr<CodesCollection> CreateEmpty();
    HALVEK_HIDDEN void AddRecords(TextIn codesData, Services& services, Remarks* remarks);
    HALVEK_HIDDEN void AddRecord(TextIn record, Services& services, Remarks* remarks);

    ObjectStore<Definition> store_;
    KeyedCollection<CodeDefinition> definitions_;
};

}  // namespace halvek
