// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <concepts>
#include <exception>
#include <memory>

namespace halvek {

/// A keyed collection, the library's or a host's own: it knows how many items it holds, and fetches
/// one by a key that is text.
template <class Collection>
concept Fetchable = requires(Collection& coll, TextIn key) {
    { coll.Count() } -> std::integral;
    coll.Item(key);
};

/// True when the collection is given, is not empty and its Item fetches something under the key,
/// with all that a fetch brings about. An Item that throws has found nothing.
template <Fetchable Collection>
bool ExistsInColl(const std::shared_ptr<Collection>& coll, TextIn key) {
    try {
        if (coll == nullptr || coll->Count() < 1) return false;
        static_cast<void>(coll->Item(key));
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace halvek
