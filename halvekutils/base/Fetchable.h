// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <concepts>
#include <exception>
#include <memory>

namespace halvek {

/// A keyed collection, the library's or a host's own: it counts its items and fetches one by a text
/// key.
template <class Collection>
concept Fetchable = requires(Collection& coll, TextIn key) {
    { coll.Count() } -> std::integral;
    coll.Item(key);
};

/// True when there is a collection, it is not empty and its Item succeeds for the key, with all
/// side effects of a fetch. An Item that throws has found nothing.
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
