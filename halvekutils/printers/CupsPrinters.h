// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/PrinterSource.h>

#include <exception>
#include <vector>

namespace halvek {

/// The queues of the print scheduler that the workstation is set up to use.
///
/// Asks the scheduler once, at the first call, and answers both calls from its reply. A scheduler
/// whose whole answer is not there within a second, or is longer than 16 MB, counts as absent; a
/// queue without a name is left out and logged. libcups is loaded for it; where it is missing, the
/// log says so and the scheduler counts as absent. Make a new object for each build.
class CupsPrinters : public PrinterSource {
  public:
    static constexpr const char* kLibrary = "libcups.so.2";

    explicit CupsPrinters(const char* library = kLibrary);
    ~CupsPrinters() override;

    /// Device URI and name of each queue. Throws DeviceError when the scheduler does not answer.
    std::vector<PrinterConnection> Connections() override;

    /// Each queue with its make and model as the driver; none when the scheduler does not answer.
    std::vector<InstalledPrinter> Installed() override;

  private:
    void Ask();

    const char* library_;
    bool asked_ = false;
    std::exception_ptr failure_;
    std::vector<InstalledPrinter> queues_;
};

}  // namespace halvek
