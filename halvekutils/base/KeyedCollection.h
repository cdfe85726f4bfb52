// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/KeyIndex.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/TextIn.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace halvek {

/// An ordered collection of shared objects, reached by position from 1 or by a text key.
///
/// Letter case of keys does not matter. A key is optional, and an item without a key differs from
/// one under the empty key. Look-ups by position and by key take constant time.
template <class T>
class KeyedCollection {
  public:
    /// What the collection holds.
    using Object = std::shared_ptr<T>;

    /// How many items there are.
    std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }

    /// Makes room for that many items, and for that many characters in all their keys.
    void Reserve(std::size_t items, std::size_t characters) {
        items_.reserve(items);
        keys_.Reserve(items, characters);
    }

    /// Appends an item without a key.
    void Add(Object item) {
        MakeRoom();
        keys_.AddWithoutKey();
        items_.push_back(std::move(item));
    }

    /// Appends an item under a key. Throws DuplicateKey, and adds nothing, when the key is taken.
    void Add(Object item, TextIn key) {
        MakeRoom();
        if (!keys_.Add(key)) throw RuntimeError(Fault::DuplicateKey, key);
        items_.push_back(std::move(item));
    }

    /// The item at a position from 1. Throws SubscriptOutOfRange.
    const Object& Item(std::int32_t position) const { return items_[IndexOf(position)]; }

    /// The item under a key. Throws InvalidArgument when there is none.
    const Object& Item(TextIn key) const {
        if (const Object* found = Find(key)) return *found;
        throw RuntimeError(Fault::InvalidArgument, key);
    }

    /// The item under a key, or null.
    const Object* Find(TextIn key) const {
        const std::size_t index = keys_.Find(key);
        return index == KeyIndex::kNone ? nullptr : &items_[index];
    }

    /// Removes the item at a position from 1. Throws SubscriptOutOfRange.
    void Remove(std::int32_t position) { RemoveAt(IndexOf(position)); }

    /// Removes the item under a key. Throws InvalidArgument when there is none.
    void Remove(TextIn key) {
        const std::size_t index = keys_.Find(key);
        if (index == KeyIndex::kNone) throw RuntimeError(Fault::InvalidArgument, key);
        RemoveAt(index);
    }

  private:
    /// Room for one more item: once its key is in the index nothing may fail.
    void MakeRoom() {
        if (items_.size() == items_.capacity()) items_.reserve(2 * items_.size() + 16);
    }

    std::size_t IndexOf(std::int32_t position) const {
        if (position < 1 || position > Count()) throw RuntimeError(Fault::SubscriptOutOfRange);
        return static_cast<std::size_t>(position) - 1;
    }

    void RemoveAt(std::size_t index) {
        keys_.Remove(index);
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
    }

    std::vector<Object> items_;
    KeyIndex keys_;
};

}  // namespace halvek
