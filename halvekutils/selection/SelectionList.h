// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/KeyIndex.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {

class Remarks;

/// A code list as the server sends it, read in place: one text and the start of each entry in it.
///
/// ":" separates entries, TAB separates fields. The first piece is a header; the pseudo-entry for
/// all codes takes its place. In every later piece field 1 is the code, field 2 the description,
/// and the last field is "1" for a deleted entry. The first piece after the header that is not
/// empty decides how many fields there are. Empty pieces are entries too.
///
/// Entries are numbered from 1 and arranged in bands of ten. The last entry is shown only when the
/// entries before it do not fill their bands: it is usually the empty piece after the last ":".
class HALVEK_EXPORT SelectionList {
  public:
    static constexpr std::int32_t kColumns = 10;     ///< how many entries a band has
    static constexpr std::int32_t kRowsPerBand = 3;  ///< ticks, codes and descriptions
    static constexpr std::int32_t kAllCodes = 1;     ///< the number of the pseudo-entry

    /// @param allValues  the list as the server sends it
    /// @param doNotIncludeDeleted  true to leave out deleted entries; otherwise they are kept and
    ///     marked
    SelectionList(std::u16string allValues, bool doNotIncludeDeleted);

    /// The number of entries, at least 1.
    std::int32_t Count() const { return static_cast<std::int32_t>(starts_.size()); }
    /// The number of rows of the bands that are shown, three for each.
    std::int32_t RowCount() const;
    /// The number of the last entry that is shown; 0 when no band is.
    std::int32_t LastShown() const { return lastShown_; }

    // What an entry holds; its number is 1 to Count(). Views stay valid as long as the list.

    /// True for an entry that is nothing at all, not even a blank.
    bool IsEmpty(std::int32_t entry) const {
        return Code(entry).empty() && Description(entry).empty();
    }
    /// Code and description of an entry, for callers that want both.
    struct Texts {
        std::u16string_view code;         ///< as Code gives it
        std::u16string_view description;  ///< as Description gives it
    };
    /// The texts of an entry.
    Texts TextsOf(std::int32_t entry) const;
    /// The code of an entry.
    std::u16string_view Code(std::int32_t entry) const;
    /// The description of an entry.
    std::u16string_view Description(std::int32_t entry) const;
    /// True when the list keeps deleted entries and this one is deleted.
    bool IsDeleted(std::int32_t entry) const;
    /// True for the pseudo-entry and for an entry whose code is not blank.
    bool HasCode(std::int32_t entry) const;

    /// The first shown entry whose code, without the blanks around it, is exactly this one; 0 when
    /// there is none.
    std::int32_t Find(std::u16string_view code) const;
    /// Builds the index for Find, which cannot fail afterwards.
    void PrepareFind() const;
    /// The same for the only code that differs from this one in letter case at most; 0 when none
    /// or several different codes do.
    std::int32_t FindInAnyCase(std::u16string_view code) const;

    /// The length of the longest code without the blanks around it.
    std::int32_t LongestCodeLength() const { return longestCodeLength_; }
    /// The longest descriptions, kept while the list is read: the widest is one of them in any
    /// font.
    std::vector<std::u16string_view> LongestDescriptions() const;

  private:
    friend struct ServerTextCheck;

    SelectionList(std::u16string allValues, bool doNotIncludeDeleted, Remarks* remarks);
    std::u16string_view From(std::int32_t entry) const;
    std::u16string_view TrimmedCode(std::int32_t entry) const;
    void ReadEntries(bool doNotIncludeDeleted, Remarks* remarks);
    void MeasureCode(std::size_t length);
    void MeasureDescription(std::size_t length);
    struct Index {
        explicit Index(KeyCase keyCase) : codes(keyCase) {}
        KeyIndex codes;
        std::vector<std::int32_t> entries;  ///< the first one of each code
    };
    Index IndexOfCodes() const;
    Index IndexInAnyCase() const;

    struct Length {
        std::size_t length;
        std::int32_t entry;
    };
    static bool IsLonger(const Length& one, const Length& other) {
        return one.length > other.length;
    }

    std::u16string values_;
    std::vector<std::uint32_t> starts_;  ///< where each entry's piece starts
    std::vector<bool> deleted_;          ///< empty when deleted entries are left out
    std::vector<Length> longest_;        ///< of the descriptions, a heap with the shortest in front
    mutable std::optional<Index> index_;    ///< made when a code is first looked up
    mutable std::optional<Index> anyCase_;  ///< likewise; entry 0 where several codes are alike
    std::size_t codes_ = 0;                 ///< how many entries have one
    std::size_t codeCharacters_ = 0;        ///< of all codes together
    std::int32_t lastShown_ = 0;
    std::int32_t longestCodeLength_ = 0;
};

}  // namespace halvek
