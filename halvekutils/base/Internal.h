// SPDX-License-Identifier: MIT
#pragma once

/// @file

/// Marks what the library without windows offers to the one with windows, to the tools, and to
/// nobody else; headers that use it are not installed.
#define HALVEK_INTERNAL [[gnu::visibility("default")]]
