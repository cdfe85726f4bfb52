// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a compiler must offer. The first of the library's headers that a host includes checks it;
/// the include of a file that does not exist ends the compilation there.

#if __cplusplus < 202002L
#error "HalvekUtils needs C++20: compile with -std=c++20 or later"
#include <HalvekUtils-needs-C++20>
#endif
#ifndef __cpp_exceptions
#error "HalvekUtils reports faults as exceptions: compile without -fno-exceptions"
#include <HalvekUtils-needs-exceptions>
#endif
