#pragma once

#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/TextIn.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace halvek {

/// An ordered collection of shared objects, reached by position from 1 or by a text key.
///
/// Keys compare without regard to letter case. A key is optional, and an item without a key differs
/// from one under the empty key. Look-ups by position and by key take constant time.
template <class T>
class KeyedCollection {
  public:
    using Object = std::shared_ptr<T>;

    std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }

    /// Appends an item without a key.
    void Add(Object item) { items_.push_back({std::move(item), nullptr}); }

    /// Appends an item under a key. Throws DuplicateKey, and adds nothing, when the key is taken.
    void Add(Object item, TextIn key) {
        // Room first: once the key is in the index nothing may fail.
        if (items_.size() == items_.capacity()) items_.reserve(2 * items_.size() + 16);
        const auto [entry, added] = positions_.try_emplace(key.Str(), items_.size());
        if (!added) throw RuntimeError(Fault::DuplicateKey, key);
        items_.push_back({std::move(item), &entry->first});
    }

    /// The item at a position from 1. Throws SubscriptOutOfRange.
    const Object& Item(std::int32_t position) const { return items_[IndexOf(position)].object; }

    /// The item under a key. Throws InvalidArgument when there is none.
    const Object& Item(TextIn key) const {
        if (const Object* found = Find(key)) return *found;
        throw RuntimeError(Fault::InvalidArgument, key);
    }

    /// The item under a key, or null.
    const Object* Find(TextIn key) const {
        const auto entry = positions_.find(std::u16string_view(key));
        return entry == positions_.end() ? nullptr : &items_[entry->second].object;
    }

    /// Removes the item at a position from 1. Throws SubscriptOutOfRange.
    void Remove(std::int32_t position) { RemoveAt(IndexOf(position)); }

    /// Removes the item under a key. Throws InvalidArgument when there is none.
    void Remove(TextIn key) {
        const auto entry = positions_.find(std::u16string_view(key));
        if (entry == positions_.end()) throw RuntimeError(Fault::InvalidArgument, key);
        RemoveAt(entry->second);
    }

  private:
    struct Entry {
        Object object;
        const std::u16string* key;  // owned by the index; null for an item without a key
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::u16string_view key) const noexcept { return HashFolded(key); }
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(std::u16string_view left, std::u16string_view right) const noexcept {
            return EqualFolded(left, right);
        }
    };

    std::size_t IndexOf(std::int32_t position) const {
        if (position < 1 || position > Count()) throw RuntimeError(Fault::SubscriptOutOfRange);
        return static_cast<std::size_t>(position) - 1;
    }

    void RemoveAt(std::size_t index) {
        if (items_[index].key != nullptr) positions_.erase(positions_.find(*items_[index].key));
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
        for (std::size_t i = index; i < items_.size(); ++i) {
            if (items_[i].key != nullptr) positions_.find(*items_[i].key)->second = i;
        }
    }

    std::vector<Entry> items_;
    std::unordered_map<std::u16string, std::size_t, Hash, Equal> positions_;
};

}  // namespace halvek
