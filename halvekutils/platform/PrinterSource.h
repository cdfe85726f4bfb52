// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>

#include <string>
#include <vector>

namespace halvek {

/// A printer as the workstation's network connections name it.
struct PrinterConnection {
    std::u16string port;  ///< where it prints to
    std::u16string name;  ///< the name that the user sees
};

/// A printer as the workstation's own printer list names it.
struct InstalledPrinter {
    std::u16string deviceName;  ///< the name that the user sees
    std::u16string port;        ///< where it prints to
    std::u16string driverName;  ///< make and model, when known
};

/// Supplies one build of the printers collection with the workstation's printers.
class HALVEK_EXPORT PrinterSource {
  public:
    virtual ~PrinterSource();

    /// The printers that the workstation is connected to. Throws a RuntimeError when they cannot be
    /// enumerated.
    virtual std::vector<PrinterConnection> Connections() = 0;

    /// The workstation's printer list; empty when there is none.
    virtual std::vector<InstalledPrinter> Installed() = 0;

  protected:
    PrinterSource() = default;
    PrinterSource(const PrinterSource&) = default;
    PrinterSource& operator=(const PrinterSource&) = default;
};

}  // namespace halvek
