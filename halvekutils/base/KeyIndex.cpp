// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/KeyIndex.h>
#include <halvekutils/base/RuntimeError.h>

#include <algorithm>
#include <bit>

namespace halvek {

namespace {

/// How many slots that many items need, with one in eight left free.
std::size_t SlotsFor(std::size_t items) {
    constexpr std::size_t kFewest = 16;
    return std::bit_ceil(std::max(items + items / 7 + 1, kFewest));
}

/// Equal keys are equal in folded form too, so one hash serves both kinds.
std::uint32_t HashOf(std::u16string_view key) {
    return static_cast<std::uint32_t>(HashFolded(key));
}

}  // namespace

bool KeyIndex::AreEqual(std::u16string_view left, std::u16string_view right) const noexcept {
    return keyCase_ == KeyCase::Exact ? left == right : EqualFolded(left, right);
}

std::u16string_view KeyIndex::TextOf(const Key& key) const noexcept {
    return std::u16string_view(text_).substr(key.start, key.length);
}

std::size_t KeyIndex::SlotOf(std::u16string_view key, std::uint32_t hash) const noexcept {
    const auto last = static_cast<std::uint32_t>(slots_.size() - 1);
    std::uint32_t at = hash & last;
    for (; slots_[at] != 0; at = (at + 1) & last) {
        const bool sameHash = ((slots_[at] ^ hash) & ~last) == 0;
        if (sameHash && AreEqual(TextOf(keys_[(slots_[at] & last) - 1]), key)) break;
    }
    return at;
}

std::size_t KeyIndex::Find(std::u16string_view key) const noexcept {
    if (slots_.empty()) return kNone;
    const std::size_t number = slots_[SlotOf(key, HashOf(key))] & (slots_.size() - 1);
    return number == 0 ? kNone : number - 1;
}

void KeyIndex::Reserve(std::size_t items, std::size_t characters) {
    keys_.reserve(items);
    text_.reserve(characters);
    MakeRoomFor(items);
}

void KeyIndex::AddWithoutKey() {
    MakeRoomFor(keys_.size() + 1);
    keys_.push_back({0, kNoKey, 0});
}

bool KeyIndex::Add(std::u16string_view key) {
    if (key.size() >= kNoKey) throw RuntimeError(Fault::InvalidArgument);
    MakeRoomFor(keys_.size() + 1);
    const std::uint32_t hash = HashOf(key);
    std::uint32_t& slot = slots_[SlotOf(key, hash)];
    if (slot != 0) return false;
    keys_.push_back({text_.size(), static_cast<std::uint32_t>(key.size()), hash});
    try {
        text_.append(key);
    } catch (...) {
        keys_.pop_back();
        throw;
    }
    slot = SlotFor(keys_.size(), hash);
    return true;
}

void KeyIndex::Remove(std::size_t number) noexcept {
    const Key removed = keys_[number];
    keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(number));
    if (removed.length != kNoKey) {
        text_.erase(removed.start, removed.length);
        for (Key& key : keys_) {
            if (key.length != kNoKey && key.start > removed.start) key.start -= removed.length;
        }
    }
    FillSlots();
}

void KeyIndex::MakeRoomFor(std::size_t items) {
    const std::size_t slots = SlotsFor(items);
    if (slots <= slots_.size()) return;
    slots_ = std::vector<std::uint32_t>(slots);
    FillSlots();
}

void KeyIndex::FillSlots() noexcept {
    std::ranges::fill(slots_, 0);
    const std::size_t last = slots_.size() - 1;
    for (std::size_t i = 0; i < keys_.size(); ++i) {
        if (keys_[i].length == kNoKey) continue;
        std::size_t at = keys_[i].hash & last;
        while (slots_[at] != 0) at = (at + 1) & last;
        slots_[at] = SlotFor(i + 1, keys_[i].hash);
    }
}

std::uint32_t KeyIndex::SlotFor(std::size_t numberPlusOne, std::uint32_t hash) const noexcept {
    const auto last = static_cast<std::uint32_t>(slots_.size() - 1);
    return static_cast<std::uint32_t>(numberPlusOne) | (hash & ~last);
}

}  // namespace halvek
