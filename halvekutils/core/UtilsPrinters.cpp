// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentServices.h>
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/refdata/PrinterListBuilder.h>

#include <utility>
#include <vector>

namespace halvek {

namespace {

/// Stands in where no desktop is installed or the installed one knows no printers.
class NoPrinters : public PrinterSource {
  public:
    std::vector<PrinterConnection> Connections() override {
        throw RuntimeError(Fault::ObjectNotSet, u"printer source");
    }
    std::vector<InstalledPrinter> Installed() override { return {}; }
};

std::unique_ptr<PrinterSource> ThePrinters() {
    Desktop* const desktop = Desktop::Installed();
    auto printers = desktop == nullptr ? nullptr : desktop->Printers();
    return printers == nullptr ? std::make_unique<NoPrinters>() : std::move(printers);
}

}  // namespace

void Utils::BuildPrintersCollection(TextIn SerialPrintersList) {
    Guarded(OnFault::Quiet, u"BuildPrintersCollection ", LogOf(*this), [&] {
        if (State().printers == nullptr) State().printers = PrintersCollection::CreateEmpty();
        const auto printers = State().printers;
        const auto source = ThePrinters();
        PrinterListBuilder builder(*printers, *source, ComponentServices());
        builder.AddSerialPrinters(SerialPrintersList);
        builder.AddWorkstationPrinters();
    });
}

std::shared_ptr<PrintersCollection> Utils::GetPrintersCollection() const {
    return State().printers;
}
void Utils::ClearPrintersCollection() {
    State().printers = nullptr;
}

std::shared_ptr<PrintersCollection> Utils::GetPrintersCollectionFiltered(bool ExcludeSpool,
                                                                         bool ExcludeFile,
                                                                         bool ExcludeWindows,
                                                                         bool ExcludeSerial) {
    const auto filter = [&]() -> std::shared_ptr<PrintersCollection> {
        const auto printers = State().printers;
        if (printers == nullptr) return nullptr;
        return printers->Filtered({ExcludeSpool, ExcludeFile, ExcludeWindows, ExcludeSerial});
    };
    return Guarded(OnFault::Quiet, u"GetPrintersCollectionFiltered ", LogOf(*this),
                   std::shared_ptr<PrintersCollection>(), filter);
}

}  // namespace halvek
