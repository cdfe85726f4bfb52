// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/PrinterSource.h>

#include <string_view>
#include <vector>

namespace halvek {

/// The queues in a print scheduler's answer, an IPP message. Leaves out queues without a name and
/// logs how many. Throws DeviceError for an answer that is broken or reports an error.
std::vector<InstalledPrinter> QueuesInAnswer(std::string_view bytes);

/// Throws DeviceError, as what the print scheduler did.
[[noreturn]] void FailAtScheduler(std::string_view reason);

}  // namespace halvek
