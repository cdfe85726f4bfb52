// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/KeyIndex.h>
#include <halvekutils/base/RuntimeError.h>

#include <algorithm>
#include <bit>
#include <functional>

namespace halvek {

namespace {

/// How many slots hold so many items with one in eight left free.
std::size_t SlotsFor(std::size_t items) {
    constexpr std::size_t kFewest = 16;
    return std::bit_ceil(std::max(items + items / 7 + 1, kFewest));
}

}  // namespace

std::uint32_t KeyIndex::HashOf(std::u16string_view key) const noexcept {
    const bool isExact = keyCase_ == KeyCase::Exact;
    return static_cast<std::uint32_t>(isExact ? std::hash<std::u16string_view>()(key)
                                              : HashFolded(key));
}

bool KeyIndex::AreEqual(std::u16string_view left, std::u16string_view right) const noexcept {
    return keyCase_ == KeyCase::Exact ? left == right : EqualFolded(left, right);
}

std::u16string_view KeyIndex::TextOf(const Key& key) const noexcept {
    return std::u16string_view(text_).substr(key.start, key.length);
}

std::size_t KeyIndex::SlotOf(std::u16string_view key, std::uint32_t hash) const noexcept {
    const std::size_t last = slots_.size() - 1;
    std::size_t slot = hash & last;
    for (; slots_[slot].number != 0; slot = (slot + 1) & last) {
        const Slot& taken = slots_[slot];
        if (taken.hash == hash && AreEqual(TextOf(keys_[taken.number - 1]), key)) break;
    }
    return slot;
}

std::size_t KeyIndex::Find(std::u16string_view key) const noexcept {
    if (slots_.empty()) return kNone;
    const std::uint32_t number = slots_[SlotOf(key, HashOf(key))].number;
    return number == 0 ? kNone : number - 1;
}

void KeyIndex::Reserve(std::size_t items, std::size_t characters) {
    keys_.reserve(items);
    text_.reserve(characters);
    if (const std::size_t slots = SlotsFor(items); slots > slots_.size()) ResizeSlots(slots);
}

void KeyIndex::AddWithoutKey() {
    keys_.push_back({0, kNoKey, 0});
}

bool KeyIndex::Add(std::u16string_view key) {
    if (key.size() >= kNoKey) throw RuntimeError(Fault::InvalidArgument);
    if (const std::size_t slots = SlotsFor(used_ + 1); slots > slots_.size()) ResizeSlots(slots);
    const std::uint32_t hash = HashOf(key);
    Slot& slot = slots_[SlotOf(key, hash)];
    if (slot.number != 0) return false;
    keys_.push_back({text_.size(), static_cast<std::uint32_t>(key.size()), hash});
    try {
        text_.append(key);
    } catch (...) {
        keys_.pop_back();
        throw;
    }
    slot = {static_cast<std::uint32_t>(keys_.size()), hash};
    ++used_;
    return true;
}

void KeyIndex::Remove(std::size_t number) noexcept {
    const Key removed = keys_[number];
    keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(number));
    if (removed.length != kNoKey) {
        text_.erase(removed.start, removed.length);
        --used_;
        for (Key& key : keys_) {
            if (key.length != kNoKey && key.start > removed.start) key.start -= removed.length;
        }
    }
    FillSlots();
}

void KeyIndex::ResizeSlots(std::size_t size) {
    slots_ = std::vector<Slot>(size);
    FillSlots();
}

void KeyIndex::FillSlots() noexcept {
    std::ranges::fill(slots_, Slot());
    const std::size_t last = slots_.size() - 1;
    for (std::size_t i = 0; i < keys_.size(); ++i) {
        if (keys_[i].length == kNoKey) continue;
        std::size_t slot = keys_[i].hash & last;
        while (slots_[slot].number != 0) slot = (slot + 1) & last;
        slots_[slot] = {static_cast<std::uint32_t>(i + 1), keys_[i].hash};
    }
}

}  // namespace halvek
