// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/refdata/PrintersCollection.h>

#include <utility>

namespace halvek {

namespace {

bool Passes(const PrinterFields& printer, const PrinterFilter& filter) {
    const bool isSpool = printer.printerID == u"S";
    return (isSpool && !filter.excludeSpool) ||
           (printer.printerType == u"WIN" && !filter.excludeWindows) ||
           (!isSpool && printer.printerType == u"SERIAL" && !filter.excludeSerial) ||
           (printer.printerType == u"FILE" && !filter.excludeFile);
}

}  // namespace

PrintersCollection::PrintersCollection() = default;
PrintersCollection::~PrintersCollection() = default;

std::shared_ptr<PrintersCollection> PrintersCollection::CreateEmpty() {
    return std::shared_ptr<PrintersCollection>(new PrintersCollection);
}

std::shared_ptr<PrinterDefinition> PrintersCollection::Item(std::int32_t position) const {
    return printers_.Item(position);
}

std::shared_ptr<PrinterDefinition> PrintersCollection::Item(TextIn key) const {
    return printers_.Item(key);
}

std::int32_t PrintersCollection::Count() const {
    return printers_.Count();
}

void PrintersCollection::Add(PrinterFields fields, std::int32_t number) {
    const std::shared_ptr<PrinterDefinition> printer(new PrinterDefinition(std::move(fields)));
    printers_.Add(printer, IntegerText(number) + u"KEY");
}

std::shared_ptr<PrintersCollection> PrintersCollection::Filtered(
    const PrinterFilter& filter) const {
    auto filtered = CreateEmpty();
    for (const auto& printer : shared_from_this()) {
        if (!Passes(printer->fields_, filter)) continue;
        filtered->Add(printer->fields_, filtered->Count() + 1);
    }
    return filtered;
}

}  // namespace halvek
