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

namespace halvek {

class Services;

/// The code tables that the server described, in its order; read-only to the host.
///
/// @code{.cpp}
/// const auto codes = utils->GetCodesCollection();
/// for (const auto& code : *codes) list.add(code->CodeDescription());
/// bool lookup = codes->Item(u"INS")->CodeHasLookup();
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

    /// The first definition, for loops.
    Enumerator<const CodesCollection> begin() const;
    /// After the last definition.
    std::default_sentinel_t end() const { return {}; }

  private:
    friend struct CollectionBuilder;
    struct Definition : CodeDefinition {};

    HALVEK_HIDDEN CodesCollection();
    HALVEK_HIDDEN static std::shared_ptr<CodesCollection> CreateEmpty();
    HALVEK_HIDDEN void AddRecords(TextIn codesData, Services& services);
    HALVEK_HIDDEN void AddRecord(TextIn record, Services& services);

    ObjectStore<Definition> store_;
    KeyedCollection<CodeDefinition> definitions_;
};

}  // namespace halvek
