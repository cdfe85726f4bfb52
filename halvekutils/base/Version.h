// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>

/// @file
/// The version of the library that a program is compiled against.

/// The major number: hosts built against one run with every later version of the same.
#define HALVEKUTILS_VERSION_MAJOR 0
/// The minor number: what it adds; before 1.0.0 it may also take something away.
#define HALVEKUTILS_VERSION_MINOR 1
/// The patch number: what it mends.
#define HALVEKUTILS_VERSION_PATCH 0

/// The three as one number, to compare with in `#if`.
///
/// @code{.cpp}
/// #if HALVEKUTILS_VERSION >= HALVEKUTILS_VERSION_OF(0, 2, 0)
/// @endcode
#define HALVEKUTILS_VERSION                                                      \
    HALVEKUTILS_VERSION_OF(HALVEKUTILS_VERSION_MAJOR, HALVEKUTILS_VERSION_MINOR, \
                           HALVEKUTILS_VERSION_PATCH)

/// A version as one number: 0.1.0 is 100, 1.2.3 is 10203.
#define HALVEKUTILS_VERSION_OF(major, minor, patch) ((major)*10000 + (minor)*100 + (patch))
