// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/PrinterSource.h>

#include <string>
#include <string_view>
#include <vector>

namespace halvek {

class Cups;

/// The queues in a print scheduler's answer, an IPP message. Leaves out queues without a name and
/// logs how many. Throws DeviceError for an answer that is broken or reports an error.
std::vector<InstalledPrinter> QueuesInAnswer(const Cups& cups, std::string_view bytes);

/// Throws DeviceError, as what the print scheduler did.
[[noreturn]] void FailAtScheduler(std::string_view reason);

/// Writes a line to the log, if there is one yet, about the print scheduler.
void LogAtScheduler(const std::u16string& line);

}  // namespace halvek
