// SPDX-License-Identifier: MIT
#include <halvekutils/platform/TextField.h>

#include <algorithm>

namespace halvek {

TextField::TextField() = default;
TextField::TextField(TextIn text, std::int32_t selStart, std::int32_t selLength)
    : text_(text),
      selStart_(std::clamp(selStart, 0, Length())),
      selLength_(std::clamp(selLength, 0, Length() - selStart_)) {}
TextField::~TextField() = default;

void TextField::Text(TextIn value) {
    text_ = value;
    selStart_ = 0;
    selLength_ = 0;
}

void TextField::SelStart(std::int32_t value) {
    selStart_ = std::clamp(value, 0, Length());
    selLength_ = 0;
}

void TextField::SelLength(std::int32_t value) {
    selLength_ = std::clamp(value, 0, Length() - selStart_);
}

}  // namespace halvek
