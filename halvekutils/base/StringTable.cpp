// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/StringTable.h>

namespace halvek {

StringTable::StringTable(std::int32_t rows, std::int32_t columns) : rows_(rows) {
    if (rows < 0) throw RuntimeError(Fault::SubscriptOutOfRange);
    ResizeColumns(columns);
}

std::int32_t StringTable::Columns() const noexcept {
    return rows_ == 0 ? 0 : static_cast<std::int32_t>(cells_.size()) / rows_;
}

void StringTable::ResizeColumns(std::int32_t columns) {
    if (columns < 0) throw RuntimeError(Fault::SubscriptOutOfRange);
    cells_.resize(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns));
}

std::size_t StringTable::Offset(std::int32_t row, std::int32_t column) const {
    if (row < 0 || row >= rows_ || column < 0 || column >= Columns()) {
        throw RuntimeError(Fault::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(column) * static_cast<std::size_t>(rows_) +
           static_cast<std::size_t>(row);
}

}  // namespace halvek
