// SPDX-License-Identifier: MIT
#include <halvekutils/prefs/SystemPrefs.h>

namespace halvek {

SystemPrefs::SystemPrefs() = default;
SystemPrefs::~SystemPrefs() = default;

}  // namespace halvek
