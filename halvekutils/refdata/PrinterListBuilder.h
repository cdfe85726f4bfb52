// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/PrinterSource.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/refdata/PrintersCollection.h>

#include <cstdint>
#include <string>

namespace halvek {

class Remarks;

/// One build of the printers collection: the server's list, then the workstation's printers, all
/// numbered by one counter that starts at 0.
class PrinterListBuilder {
  public:
    /// @param printers  the collection to which printers are added
    /// @param source  supplies the workstation's printers
    /// @param services  the session whose log and special mode are used
    ///
    /// All three outlive the builder.
    PrinterListBuilder(PrintersCollection& printers, PrinterSource& source, Services& services);
    ~PrinterListBuilder();
    PrinterListBuilder(const PrinterListBuilder&) = delete;
    PrinterListBuilder& operator=(const PrinterListBuilder&) = delete;

    /// Adds the entries of the server's list. Tabs separate entries, ":" separates their four
    /// fields: identifier, an ignored one, description, port. An entry with another number of
    /// fields beeps, is logged and skipped. Throws DuplicateKey.
    /// @param remarks  hears of entries that are left out; may be null
    void AddSerialPrinters(TextIn serialPrintersList, Remarks* remarks = nullptr);

    /// Adds the workstation's printers, from the source that the session's special mode chooses:
    /// "printerlistold" means the printer list, "printerlistnew" the connections. With neither word
    /// the connections come first, and the printer list is used when they fail. Failures are
    /// logged; what was added before a failure stays.
    void AddWorkstationPrinters();

  private:
    void AddSerialPrinter(TextIn entry, std::int32_t position, Remarks* remarks);
    bool AddConnections();
    void AddInstalledPrinters();
    void AddNext(PrinterFields fields);

    PrintersCollection& printers_;
    PrinterSource& source_;
    Services& services_;
    std::int32_t counter_ = -1;
};

}  // namespace halvek
