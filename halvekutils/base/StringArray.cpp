// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/StringArray.h>

namespace halvek {

StringArray::StringArray(std::int32_t lower, std::int32_t upper) : allocated_(true), lower_(lower) {
    const std::int64_t size = std::int64_t{upper} - lower + 1;
    if (size < 0) throw RuntimeError(Fault::SubscriptOutOfRange);
    elements_.resize(static_cast<std::size_t>(size));
}

StringArray::StringArray(std::int32_t lower, std::vector<std::u16string> elements)
    : allocated_(true), lower_(lower), elements_(std::move(elements)) {}

std::int32_t StringArray::LBound() const {
    if (!allocated_) throw RuntimeError(Fault::SubscriptOutOfRange);
    return lower_;
}

std::int32_t StringArray::UBound() const {
    return static_cast<std::int32_t>(LBound() + static_cast<std::int64_t>(elements_.size()) - 1);
}

void StringArray::Append(std::u16string element) {
    if (!allocated_) throw RuntimeError(Fault::SubscriptOutOfRange);
    elements_.push_back(std::move(element));
}

std::size_t StringArray::Offset(std::int32_t index) const {
    const std::int64_t offset = std::int64_t{index} - lower_;
    if (offset < 0 || offset >= static_cast<std::int64_t>(elements_.size())) {
        throw RuntimeError(Fault::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(offset);
}

}  // namespace halvek
