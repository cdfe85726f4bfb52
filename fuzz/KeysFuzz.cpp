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
            case 2:
                if (position >= 1 && position <= collection.Count()) {
                    collection.Remove(position);
                    list.erase(list.begin() + position - 1);
                    break;
                }
                Require(FaultOf([&] { collection.Remove(position); }) == 9 &&
                            FaultOf([&] { collection.Item(position); }) == 9,
                        "no item lies outside");
                break;
            default:
                Require((FaultOf([&] { collection.Add(item, key); }) != 0) == isThere,
                        "a key is taken once");
                if (!isThere) list.emplace_back(Folded(key), item);
        }
        Require(collection.Count() == static_cast<std::int32_t>(list.size()), "as many items");
        const auto found = at(key);
        const auto* const looked = collection.Find(key);
        Require((looked != nullptr) == (found != list.end()), "a key that is there is found");
        Require(looked == nullptr || *looked == found->second, "a key finds its own item");
        for (std::size_t i = 0; i < list.size(); ++i) {
            Require(collection.Item(static_cast<std::int32_t>(i) + 1) == list[i].second,
                    "in order");
        }
    }
    for (const auto& [key, item] : list) {
        if (key) Require(collection.Item(*key) == item, "every key finds its own item");
    }
}
