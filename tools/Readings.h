// SPDX-License-Identifier: MIT
#pragma once

#include "Table.h"

#include <halvekutils/core/ServerTextCheck.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace check {

/// What the library makes of one text.
struct Reading {
    Table table;
    halvek::Remarks remarks;
};

/// A kind of server text.
struct Format {
    std::string_view name;
    Reading (*read)(std::u16string text);
};

/// All kinds.
std::span<const Format> Formats();

}  // namespace check
