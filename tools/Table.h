// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace check {

/// Rows of texts and yes-or-no values, held as UTF-8.
class Table {
  public:
    /// What the cells of a column hold.
    enum class Kind { Text, Flag };
    /// One column.
    struct Column {
        std::string_view title;
        Kind kind = Kind::Text;
    };

    /// A table without rows.
    explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}

    /// Fills the next cell of a text column.
    Table& Add(halvek::TextIn text);
    /// Fills the next cell of a flag column.
    Table& Add(bool flag);

    /// The columns from left to right.
    const std::vector<Column>& Columns() const { return columns_; }
    /// How many rows have been filled.
    std::size_t Rows() const { return ends_.size() / columns_.size(); }
    /// A cell; a flag is "true" or "false".
    std::string_view Cell(std::size_t row, std::size_t column) const {
        const std::size_t number = row * columns_.size() + column;
        const std::size_t start = number == 0 ? 0 : ends_[number - 1];
        return std::string_view(text_).substr(start, ends_[number] - start);
    }

  private:
    std::vector<Column> columns_;
    std::string text_;
    std::vector<std::size_t> ends_;  ///< of the cells in the text, row by row
};

/// Appends a text as UTF-8.
void AppendUtf8(std::string& out, std::u16string_view text);

}  // namespace check
