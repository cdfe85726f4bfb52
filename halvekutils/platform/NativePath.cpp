// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/platform/NativePath.h>

#include <algorithm>
#include <string>

namespace halvek {

std::filesystem::path NativePath(TextIn path) {
    std::string native = ToUtf8(path);
    if (native.find('\0') != std::string::npos) throw RuntimeError(Fault::PathNotFound, path);
    std::ranges::replace(native, '\\', '/');
    return native;
}

}  // namespace halvek
