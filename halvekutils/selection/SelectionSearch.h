// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>
#include <halvekutils/selection/SelectionList.h>

#include <cstdint>
#include <string>
#include <vector>

namespace halvek {

/// Finds the entries of a selection list whose code or description contains a word. Letter case and
/// accents do not matter; a blank is a character like any other.
class SelectionSearch {
  public:
    /// `list` outlives the search.
    explicit SelectionSearch(const SelectionList& list) : list_(list) {}

    /// Looks for another word; the empty one finds nothing.
    void Find(TextIn word);

    /// How many entries contain the word.
    std::int32_t Count() const { return static_cast<std::int32_t>(found_.size()); }
    /// The best of them: one whose code begins with the word, else the description, else a word in
    /// either, else any; of several the first. 0 for none.
    std::int32_t Best() const { return best_; }
    /// The place of an entry among those found, from 1; 0 when it is none of them.
    std::int32_t PlaceOf(std::int32_t entry) const;
    /// The first one found after an entry, or the last one before it, and on at the other end of
    /// the list; 0 for none.
    std::int32_t NextAfter(std::int32_t entry, bool backwards) const;

  private:
    const SelectionList& list_;
    std::u16string word_;
    std::vector<std::int32_t> found_;  ///< in the order of the list
    std::int32_t best_ = 0;
};

}  // namespace halvek
