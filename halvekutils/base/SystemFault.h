// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/RuntimeError.h>

#include <filesystem>
#include <system_error>

namespace halvek {

// Apart from RuntimeError.h, which every file includes: <filesystem> takes long to compile.

/// The fault that stands for a system error; its description names the file.
RuntimeError SystemFault(std::error_code error, const std::filesystem::path& file);

}  // namespace halvek
