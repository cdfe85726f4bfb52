// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/selection/SelectionList.h>

#include <cstdint>

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

/// The current entry of a selection list and how keys move it, from one entry with a code to
/// another.
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
    /// Moves by a key; Enter and Space do not. Left and right cross the bands; up and down keep to
    /// the column, also past a band that is too short for it.
    /// @param key  the key
    /// @param bandsOnPage  how many bands the grid shows at a time
    bool Move(SelectionKey key, std::int32_t bandsOnPage);

  private:
    std::int32_t NearestWithCode(std::int32_t entry, std::int32_t step) const;
    bool GoToNearest(std::int32_t entry, std::int32_t step);
    bool MoveAcrossBands(std::int32_t bands);

    const SelectionList& list_;
    std::int32_t entry_;
    std::int32_t column_ = 1;  ///< the one that up and down keep to
};

}  // namespace halvek
