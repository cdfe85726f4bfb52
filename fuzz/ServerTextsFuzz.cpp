// SPDX-License-Identifier: MIT
#include "fuzz/FuzzText.h"
#include "tests/FakeServices.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/platform/PrinterSource.h>
#include <halvekutils/prefs/ReminderDefinition.h>
#include <halvekutils/refdata/CollectionBuilder.h>
#include <halvekutils/refdata/PrinterListBuilder.h>

using namespace halvek;

namespace {

class NoPrinters : public PrinterSource {
    std::vector<PrinterConnection> Connections() override { return {}; }
    std::vector<InstalledPrinter> Installed() override { return {}; }
};

void CheckPrinters(const std::u16string& text, const PrinterFilter& filter) {
    FakeServices services;
    NoPrinters none;
    const auto printers = CollectionBuilder::Printers();
    PrinterListBuilder(*printers, none, services).AddSerialPrinters(text);
    std::int32_t added = 0;
    std::int32_t passed = 0;
    std::size_t refused = 0;
    for (const std::u16string& entry : Cut(text, u'\t')) {
        const auto fields = Cut(entry, u':');
        if (entry.empty()) continue;
        if (fields.size() != 4) {
            ++refused;
            continue;
        }
        const auto printer = printers->Item(IntegerText(added++) + u"key");
        const bool isFile = fields[3] == u"FILE";
        Require(printer == printers->Item(added) && printer->IsSerial(), "key and position agree");
        Require(printer->PrinterID() == fields[0] && printer->PrinterDescription() == fields[2] &&
                    printer->PrinterPort() == fields[3] &&
                    printer->PrinterType() == (isFile ? u"FILE" : u"SERIAL"),
                "a printer has the fields of its entry");
        const bool isSpool = fields[0] == u"S";
        if (isSpool && !filter.excludeSpool) {
            ++passed;
        } else if (isFile ? !filter.excludeFile : !isSpool && !filter.excludeSerial) {
            ++passed;
        }
    }
    Require(printers->Count() == added && services.logged.size() == refused, "kept or refused");
    Require(printers->Filtered(filter)->Count() == passed, "the filter lets the right ones pass");
}

void CheckReminder(const std::u16string& text) {
    ReminderDefinition reminder;
    reminder.PopulateReminder(u"7", text);
    const std::size_t mark = text.find(u'£');
    const std::u16string tabs = text.substr(0, mark);
    Require(reminder.SoundAlert() == (mark != text.npos && text.substr(mark + 1, 1) == u"1"),
            "a 1 behind the mark asks for an alert");
    Require(reminder.HasData() == !tabs.empty(), "a mark alone is no data");
    if (tabs.empty()) return;
    std::vector<std::u16string> titles;
    bool isSpecific = false;
    std::int16_t number = 0;
    for (const std::u16string& tab : Cut(tabs, u'ç')) {
        std::vector<std::u16string> lines = Cut(tab, u'æ');
        if (!lines[0].empty()) titles.push_back(lines[0]);
        lines.erase(lines.begin());
        std::erase(lines, u"");
        for (const auto& line : lines)
            isSpecific |= line.starts_with(u"p-") || line.starts_with(u"P-");
        lines.insert(lines.begin(), u"");
        Require(reminder.TabData(++number) == StringArray(0, lines), "a tab has its lines");
    }
    Require(reminder.Tabs() == StringArray(1, titles), "the titles in order");
    Require(reminder.HasPatientSpecificData() == isSpecific, "patients' lines are noticed");
    Require(!reminder.TabData(static_cast<std::int16_t>(number + 1)).IsAllocated(), "no other tab");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    PrinterFilter filter;
    for (bool* each : {&filter.excludeSpool, &filter.excludeFile, &filter.excludeSerial}) {
        *each = input.ConsumeBool();
    }
    const std::u16string text = RestAsText(input);
    CheckPrinters(text, filter);
    CheckPrinters(Narrowed(text, u"\t:::SFILE7"), filter);
    CheckReminder(text);
    CheckReminder(Narrowed(text, u"æçæ£pP-1x"));
    return 0;
}
