// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>

/// @file

/// Marks what the shared libraries offer to hosts; everything else stays hidden.
#define HALVEK_EXPORT [[gnu::visibility("default")]]

/// Marks private members of an exported class that only the library may call: a host that gets
/// round their access fails to link.
#define HALVEK_HIDDEN [[gnu::visibility("hidden")]]
