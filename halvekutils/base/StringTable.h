// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace halvek {

/// A two-dimensional array of texts. Rows and columns count from 0; new cells are empty.
///
/// An index outside the bounds throws SubscriptOutOfRange.
class HALVEK_EXPORT StringTable {
  public:
    StringTable() = default;
    /// Throws SubscriptOutOfRange for a negative number of rows or columns.
    StringTable(std::int32_t rows, std::int32_t columns);

    /// The number of rows.
    std::int32_t Rows() const noexcept { return rows_; }
    /// The number of columns.
    std::int32_t Columns() const noexcept;

    /// The text of a cell. Throws SubscriptOutOfRange.
    std::u16string& At(std::int32_t row, std::int32_t column) {
        return cells_[Offset(row, column)];
    }
    const std::u16string& At(std::int32_t row, std::int32_t column) const {
        return cells_[Offset(row, column)];
    }

    /// Adds or removes columns at the end; the others keep their contents.
    void ResizeColumns(std::int32_t columns);

    friend bool operator==(const StringTable&, const StringTable&) = default;

  private:
    std::size_t Offset(std::int32_t row, std::int32_t column) const;

    std::int32_t rows_ = 0;
    std::vector<std::u16string> cells_;  // column by column, as columns come and go at the end
};

}  // namespace halvek
