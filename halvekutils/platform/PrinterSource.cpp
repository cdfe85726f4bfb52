// SPDX-License-Identifier: MIT
#include <halvekutils/platform/PrinterSource.h>

namespace halvek {

PrinterSource::~PrinterSource() = default;

}  // namespace halvek
