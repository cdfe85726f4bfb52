// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <filesystem>

namespace halvek {

/// A host's path, in which both kinds of slash separate folders. Throws PathNotFound for a path
/// with a zero character.
std::filesystem::path NativePath(TextIn path);

}  // namespace halvek
