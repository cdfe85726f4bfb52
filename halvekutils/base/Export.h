// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>

/// @file

/// Marks what the shared libraries offer to hosts; everything else stays hidden.
#define HALVEK_EXPORT [[gnu::visibility("default")]]
