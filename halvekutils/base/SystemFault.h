// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/RuntimeError.h>

#include <filesystem>
#include <system_error>

namespace halvek {

// Not in RuntimeError.h, which every file includes, because <filesystem> takes long to compile.

/// The fault for a system error; its description names the file.
RuntimeError SystemFault(std::error_code error, const std::filesystem::path& file);

}  // namespace halvek
