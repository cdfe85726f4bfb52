// SPDX-License-Identifier: MIT
#include <halvekutils/refdata/SecurityItem.h>

namespace halvek {

namespace {

constexpr std::uint8_t ValueOf(char16_t digit) {
    if (digit >= u'0' && digit <= u'9') return static_cast<std::uint8_t>(digit - u'0');
    if (digit >= u'A' && digit <= u'F') return static_cast<std::uint8_t>(digit - u'A' + 10);
    if (digit >= u'a' && digit <= u'f') return static_cast<std::uint8_t>(digit - u'a' + 10);
    return 0;
}

}  // namespace

SecurityItem::SecurityItem() = default;
SecurityItem::~SecurityItem() = default;

void SecurityItem::Init(TextIn itemKey, char16_t rightsDigit) {
    itemKey_ = itemKey;
    rights_ |= ValueOf(rightsDigit);
}

}  // namespace halvek
