// SPDX-License-Identifier: MIT
// No #pragma once: each header that uses such a name includes this file and, at its end, XlibOn.h.

/// @file
/// Sets aside those macros of Xlib that this library's headers use as names.

#pragma push_macro("AllValues")
#pragma push_macro("KeyPress")
#pragma push_macro("None")
#pragma push_macro("SelectionRequest")
#undef AllValues
#undef KeyPress
#undef None
#undef SelectionRequest
