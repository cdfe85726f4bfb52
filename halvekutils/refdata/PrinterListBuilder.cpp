// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Remarks.h>
#include <halvekutils/platform/Beep.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/refdata/CollectionBuilder.h>
#include <halvekutils/refdata/PrinterListBuilder.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace halvek {

namespace {

constexpr char16_t kEntrySeparator = u'\t';
constexpr char16_t kFieldSeparator = u':';
constexpr std::u16string_view kPrinterListWord = u"printerlistold";
constexpr std::u16string_view kConnectionsWord = u"printerlistnew";
constexpr std::size_t kMaxInstalled = 100;

enum Field : std::size_t { kIdentifier, kIgnored, kDescription, kPort, kFieldCount };

using Fields = std::array<TextIn, kFieldCount>;

PrinterFields SerialPrinter(const Fields& fields) {
    PrinterFields printer;
    printer.isSerial = true;
    printer.printerID = fields[kIdentifier];
    printer.printerType = fields[kPort] == u"FILE" ? u"FILE" : u"SERIAL";
    printer.printerDescription = fields[kDescription];
    printer.printerPort = fields[kPort];
    return printer;
}

PrinterFields WorkstationPrinter(std::size_t position, std::u16string name, std::u16string port) {
    PrinterFields printer;
    printer.printerID = IntegerText(static_cast<std::int64_t>(position)) + u"WIN";
    printer.printerType = u"WIN";
    printer.printerDescription = name;
    printer.printerPort = std::move(port);
    printer.printerDeviceName = std::move(name);
    return printer;
}

bool HasWord(std::u16string_view specialMode, std::u16string_view lowerCaseWord) {
    const auto same = [](char16_t character, char16_t wanted) {
        return FoldCase(character) == wanted;
    };
    return std::search(specialMode.begin(), specialMode.end(), lowerCaseWord.begin(),
                       lowerCaseWord.end(), same) != specialMode.end();
}

}  // namespace

PrinterListBuilder::PrinterListBuilder(PrintersCollection& printers, PrinterSource& source,
                                       Services& services)
    : printers_(printers), source_(source), services_(services) {}
PrinterListBuilder::~PrinterListBuilder() = default;

void PrinterListBuilder::AddSerialPrinters(TextIn serialPrintersList, Remarks* remarks) {
    if (remarks != nullptr) remarks->Begin(serialPrintersList);
    std::int32_t position = 0;
    for (const TextIn entry : Pieces(serialPrintersList, kEntrySeparator)) {
        if (remarks != nullptr) remarks->NextRecord();
        if (!entry.empty()) {
            AddSerialPrinter(entry, position, remarks);
        } else if (remarks != nullptr) {
            remarks->OnEmptyRecord(serialPrintersList, entry);
        }
        ++position;
    }
}

void PrinterListBuilder::AddSerialPrinter(TextIn entry, std::int32_t position, Remarks* remarks) {
    Fields fields;
    const std::size_t count = CutInto(fields, entry, kFieldSeparator);
    if (count == kFieldCount) {
        AddNext(SerialPrinter(fields));
        return;
    }
    if (remarks != nullptr) {
        remarks->Add(RemarkKind::Ignored, std::min<std::size_t>(count, kFieldCount), entry,
                     Quoted(entry) + u" does not have 4 fields: entry left out");
    }
    Beep();
    services_.LogError(u"BuildPrintersCollection error; format is invalid for item " +
                       IntegerText(position) + u' ' + entry.Str());
}

void PrinterListBuilder::AddWorkstationPrinters() {
    const std::u16string specialMode = services_.SpecialMode();
    if (HasWord(specialMode, kPrinterListWord)) {
        AddInstalledPrinters();
        return;
    }
    if (AddConnections() || HasWord(specialMode, kConnectionsWord)) return;
    Beep();
    services_.LogError(u"Adding Printers the old way 100 max. Total count: " +
                       IntegerText(static_cast<std::int64_t>(source_.Installed().size())));
    AddInstalledPrinters();
}

bool PrinterListBuilder::AddConnections() {
    const auto add = [&] {
        std::size_t position = 0;
        for (auto& [port, name] : source_.Connections()) {
            AddNext(WorkstationPrinter(++position, std::move(name), std::move(port)));
        }
        return true;
    };
    return Guarded(OnFault::Quiet, u"AddWindowsPrintersWSH ", services_, false, add);
}

void PrinterListBuilder::AddInstalledPrinters() {
    const auto add = [&] {
        std::size_t position = 0;
        for (auto& [deviceName, port, driverName] : source_.Installed()) {
            if (position == kMaxInstalled) {
                Beep();
                services_.LogError(u"Printers list over MaxNoToLoad, limiting to MaxNoToLoad 100");
                return;
            }
            PrinterFields printer =
                WorkstationPrinter(++position, std::move(deviceName), std::move(port));
            printer.printerDriverName = std::move(driverName);
            AddNext(std::move(printer));
        }
    };
    Guarded(OnFault::Quiet, u"AddWindowsPrintersOldWay ", services_, add);
}

void PrinterListBuilder::AddNext(PrinterFields fields) {
    CollectionBuilder::Add(printers_, std::move(fields), ++counter_);
}

}  // namespace halvek
