// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Enumerator.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/Fetchable.h>
#include <halvekutils/base/KeyedCollection.h>
#include <halvekutils/base/ObjectStore.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/refdata/CodeDefinition.h>

#include <cstdint>
#include <iterator>
#include <memory>

namespace halvek {

/// The code tables that the server described, in its order; read-only to the host.
///
///     const auto codes = utils->GetCodesCollection();
///     for (const auto& code : *codes) list.add(code->CodeDescription());
///     bool lookup = codes->Item(u"INS")->CodeHasLookup();
class HALVEK_EXPORT CodesCollection : public Fetchable,
                                      public std::enable_shared_from_this<CodesCollection> {
  public:
    /// A collection without definitions.
    static std::shared_ptr<CodesCollection> CreateEmpty();
    ~CodesCollection() override;

    /// The definition at a position from 1. Throws SubscriptOutOfRange.
    std::shared_ptr<CodeDefinition> Item(std::int32_t position) const;

    /// The definition under a key, letter case ignored. Throws InvalidArgument for an unknown key.
    std::shared_ptr<CodeDefinition> Item(TextIn key) const;

    /// How many definitions there are.
    std::int32_t Count() const override;
    void Fetch(TextIn key) override;

    /// The first definition, for loops.
    Enumerator<const CodesCollection> begin() const;
    /// Behind the last definition.
    std::default_sentinel_t end() const { return {}; }

    /// Adds the definitions of a codes data text. The first of two equal keys wins; the second is
    /// logged. A definition without a key can be reached by position only.
    void AddRecords(TextIn codesData, Services& services);

  private:
    CodesCollection();
    void AddRecord(TextIn record, Services& services);

    ObjectStore<CodeDefinition> store_;
    KeyedCollection<CodeDefinition> definitions_;
};

}  // namespace halvek
