// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>

#include <cstdint>
#include <string>

namespace halvek {

/// The fields of a printer; PrinterDefinition documents them.
struct PrinterFields {
    bool isSerial = false;              ///< see IsSerial
    std::u16string printerID;           ///< see PrinterID
    std::u16string printerType;         ///< see PrinterType
    std::u16string printerDescription;  ///< see PrinterDescription
    std::u16string printerPort;         ///< see PrinterPort
    std::u16string printerDeviceName;   ///< see PrinterDeviceName
    std::u16string printerDriverName;   ///< see PrinterDriverName
};

/// An output device that a user may choose. Only PrintersCollection makes one.
class HALVEK_EXPORT PrinterDefinition {
  public:
    ~PrinterDefinition();

    /// A workstation printer's name; empty for an entry of the serial list.
    std::u16string PrinterDeviceName() const { return fields_.printerDeviceName; }
    /// The port; "FILE" for an entry that prints to a file.
    std::u16string PrinterPort() const { return fields_.printerPort; }
    /// The serial list's description, or a workstation printer's name.
    std::u16string PrinterDescription() const { return fields_.printerDescription; }
    /// "SERIAL", "FILE" or "WIN".
    std::u16string PrinterType() const { return fields_.printerType; }
    /// The serial list's identifier, "S" for the spool; "1WIN", "2WIN", ... for the workstation's.
    std::u16string PrinterID() const { return fields_.printerID; }
    /// True for every entry of the serial list, including those that print to a file.
    bool IsSerial() const { return fields_.isSerial; }
    /// Always 0: printers are numbered by their keys.
    std::int16_t NumberInOrder() const { return 0; }
    /// The driver's name, if the workstation's printer list gave one.
    std::u16string PrinterDriverName() const { return fields_.printerDriverName; }

  private:
    friend class PrintersCollection;
    HALVEK_HIDDEN explicit PrinterDefinition(PrinterFields fields);

    PrinterFields fields_;
};

}  // namespace halvek
