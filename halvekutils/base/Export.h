// SPDX-License-Identifier: MIT
#pragma once

/// @file

/// Marks what the shared libraries offer to hosts; everything else stays hidden.
#define HALVEK_EXPORT [[gnu::visibility("default")]]
