// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/selection/SelectionList.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace halvek {

/// The keys that the grid of a selection dialog knows.
enum class SelectionKey {
    Enter,     ///< OK
    Space,     ///< ticks or unticks the current entry
    PageUp,    ///< as many bands up as are in view
    PageDown,  ///< as many bands down as are in view
    End,       ///< the last entry
    Home,      ///< the first entry, that of all codes
    Left,      ///< the entry before
    Up,        ///< the band above
    Right,     ///< the entry after
    Down,      ///< the band below
};

/// The current entry of a selection list and how it moves, from one entry with a code to another:
/// by keys, or to an entry that begins with typed letters.
class HALVEK_EXPORT SelectionCursor {
  public:
    /// Starts on the pseudo-entry, or nowhere when the list shows no entry. `list` outlives the
    /// cursor.
    explicit SelectionCursor(const SelectionList& list);

    /// The current entry; 0 when the list shows none.
    std::int32_t Entry() const { return entry_; }

    // Each is true when the current entry has changed.

    /// Goes to an entry with a code.
    bool GoTo(std::int32_t entry);
    /// Moves by a key; Enter and Space do not. Left and right cross the bands.
    /// @param key  the key
    /// @param bandsOnPage  how many bands the grid shows at a time
    bool Move(SelectionKey key, std::int32_t bandsOnPage);
    /// Goes to the next entry whose code or description begins with what was typed, letter case
    /// ignored.
    /// @param letter  the character; a blank or control character moves nowhere
    /// @param continues  it follows closely on the last one and is added to it
    bool TypeLetter(char16_t letter, bool continues);

  private:
    std::int32_t NearestWithCode(std::int32_t entry, std::int32_t step) const;
    bool GoToNearest(std::int32_t entry, std::int32_t step);
    bool MoveAcrossBands(std::int32_t bands);
    std::int32_t FindByStart(std::u16string_view start, std::int32_t from) const;

    const SelectionList& list_;
    std::int32_t entry_;
    std::u16string searched_;
};

}  // namespace halvek
