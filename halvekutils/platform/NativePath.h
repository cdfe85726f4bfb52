// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <filesystem>

namespace halvek {

/// A host's path, in which both kinds of slash part the folders. Throws PathNotFound for one with a
/// zero character.
std::filesystem::path NativePath(TextIn path);

}  // namespace halvek
