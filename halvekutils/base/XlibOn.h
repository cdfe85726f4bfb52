// SPDX-License-Identifier: MIT

/// @file
/// Brings back the macros that XlibOff.h has set aside.

#pragma pop_macro("AllValues")
#pragma pop_macro("KeyPress")
#pragma pop_macro("None")
#pragma pop_macro("SelectionRequest")
