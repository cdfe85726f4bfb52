// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "tests/FaultOf.h"

#include <halvekutils/base/KeyedCollection.h>

#include <optional>

using namespace halvek;

/// Adds and removes items by key and by position, and compares with a list that is searched from
/// its start.
void halvek::Check(FuzzedDataProvider& input) {
    using Item = std::pair<std::optional<std::u16string>, std::shared_ptr<int>>;
    KeyedCollection<int> collection;
    std::vector<Item> list;
    const auto at = [&](const std::u16string& key) {
        return std::find_if(list.begin(), list.end(), [&](const Item& item) {
            return item.first && *item.first == Folded(key);
        });
    };
    while (input.remaining_bytes() > 0) {
        const auto item = std::make_shared<int>(0);
        const std::u16string key = FuzzText(input, 9);
        const auto position = input.ConsumeIntegralInRange(-1, 9);
        const bool isThere = at(key) != list.end();
        switch (input.ConsumeIntegralInRange(0, 5)) {
            case 0:
                collection.Add(item);
                list.emplace_back(std::nullopt, item);
                break;
            case 1:
                Require(FaultOf([&] { collection.Remove(key); }) == (isThere ? 0 : 5),
                        "what has no such key cannot be removed by it");
                if (isThere) list.erase(at(key));
                break;
            case 2: {
                const bool isInside = position >= 1 && position <= std::ssize(list);
                const std::int32_t fault = isInside ? 0 : 9;
                Require(FaultOf([&] { collection.Item(position); }) == fault &&
                            FaultOf([&] { collection.Remove(position); }) == fault,
                        "no item lies outside");
                if (isInside) list.erase(list.begin() + position - 1);
                break;
            }
            default:
                Require((FaultOf([&] { collection.Add(item, key); }) != 0) == isThere,
                        "a key is taken once");
                if (!isThere) list.emplace_back(Folded(key), item);
        }
        Require(collection.Count() == std::ssize(list), "as many items");
        Require((collection.Find(key) != nullptr) == (at(key) != list.end()), "found if there");
        for (std::int32_t i = 0; const auto& [itsKey, itsItem] : list) {
            Require(collection.Item(++i) == itsItem, "in order");
            Require(!itsKey || collection.Item(*itsKey) == itsItem, "a key finds its own item");
        }
    }
}
