// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {

/// Whether the letter case of keys matters.
enum class KeyCase {
    Ignored,  ///< as FoldCase has it
    Exact,    ///< keys are equal when all their characters are
};

/// The keys of a collection's items.
///
/// Every item has a number from 0 and may have a key; an item without a key differs from one under
/// the empty key. The keys stand one after the other in one text, beside a hash table of the
/// numbers.
///
/// A table of our own, because look-ups by key are what hosts do most with lists of 100,000 codes:
/// std::unordered_map and QHash, which allocate a node or a folded key each, take two to five times
/// as long.
class HALVEK_EXPORT KeyIndex {
  public:
    /// An index without items.
    explicit KeyIndex(KeyCase keyCase = KeyCase::Ignored) noexcept : keyCase_(keyCase) {}

    /// What Find returns for a key that no item has.
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    /// The number of the item under a key; kNone when there is none.
    std::size_t Find(std::u16string_view key) const noexcept;

    /// How many items there are, with a key or without.
    std::size_t Count() const noexcept { return keys_.size(); }

    /// The key of an item that has one, as it was added; valid until the index changes.
    std::u16string_view KeyOf(std::size_t number) const noexcept { return TextOf(keys_[number]); }

    /// Makes room for that many items, and for that many characters in all their keys.
    void Reserve(std::size_t items, std::size_t characters);

    /// Gives the next item no key.
    void AddWithoutKey();
    /// Gives the next item a key; false, and nothing is added, when the key is taken.
    bool Add(std::u16string_view key);

    /// Removes an item; those after it move up by one.
    void Remove(std::size_t number) noexcept;

  private:
    struct Key {
        std::size_t start;
        std::uint32_t length;  ///< kNoKey for an item without a key
        std::uint32_t hash;
    };
    static constexpr std::uint32_t kNoKey = 0xFFFFFFFF;

    bool AreEqual(std::u16string_view left, std::u16string_view right) const noexcept;
    std::u16string_view TextOf(const Key& key) const noexcept;
    std::size_t SlotOf(std::u16string_view key, std::uint32_t hash) const noexcept;
    void MakeRoomFor(std::size_t items);
    void FillSlots() noexcept;
    std::uint32_t SlotFor(std::size_t numberPlusOne, std::uint32_t hash) const noexcept;

    KeyCase keyCase_;
    std::vector<Key> keys_;
    std::u16string text_;
    // The number of slots is a power of two, and at most 7 of 8 are taken. A free slot is 0; any
    // other holds the item's number plus 1 and, in the bits that no number needs, bits of the hash,
    // which rule out most other keys without comparing them.
    std::vector<std::uint32_t> slots_;
};

}  // namespace halvek
