// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/platform/PrinterSource.h>

#include <vector>

namespace halvek {

/// Used when no desktop is installed or the installed one has no printers.
class NoPrinters : public PrinterSource {
  public:
    std::vector<PrinterConnection> Connections() override {
        throw RuntimeError(Fault::ObjectNotSet, u"printer source");
    }
    std::vector<InstalledPrinter> Installed() override { return {}; }
};

}  // namespace halvek
