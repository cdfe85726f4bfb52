// SPDX-License-Identifier: MIT
// The texts of a server, read in a session and by halvekutils-check, against plain models.
#include "fuzz/FuzzTarget.h"
#include "tests/FakeServices.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/core/ServerTextCheck.h>
#include <halvekutils/platform/PrinterSource.h>
#include <halvekutils/refdata/CollectionBuilder.h>
#include <halvekutils/refdata/PrinterListBuilder.h>

#include <map>
#include <set>

using namespace halvek;

namespace {

void RequireFields(const CodeDefinition& code, const std::vector<std::u16string>& fields) {
    const auto isOn = [&](std::size_t field) {
        return field < fields.size() && Val(fields[field]) == 1;
    };
    Require(code.CodeDescription() == fields[0] && code.CodeKey() == fields[1], "its name");
    Require(code.CodeHasLookup() == isOn(2) && code.IncludedInMenu() == (fields[3] == u"1"),
            "its menu");
    Require(code.ReportName() == fields[4], "its report");
    Require(code.SortByList() == fields[5] + (fields.size() > 6 ? u'æ' + fields[6] : u""),
            "its order, one half or both");
    Require(code.IsEntitySpecific() == isOn(7) && code.IsSystemCode() == isOn(8), "its kind");
}

void CheckCodes(const std::u16string& text) {
    FakeServices services;
    const auto codes = CollectionBuilder::Codes();
    CollectionBuilder::Add(*codes, text, services);
    std::set<std::u16string> keys;
    std::int32_t kept = 0;
    std::size_t refused = 0;
    for (const std::u16string& record : Cut(text, u'|')) {
        if (record.empty()) continue;
        auto fields = Cut(record, u'æ');
        if (fields.size() < 6) fields.assign(6, u"");
        const std::u16string& key = fields[1];
        if (!key.empty() && !keys.insert(Folded(key)).second) {
            ++refused;
            continue;
        }
        const auto code = codes->Item(++kept);
        RequireFields(*code, fields);
        Require(key.empty() || codes->Item(key) == code, "a key finds its own record");
    }
    Require(codes->Count() == kept && services.logged.size() == refused, "kept or refused");
    Remarks remarks;
    Require(ServerTextCheck::Codes(text, remarks)->Count() == kept, "a listener changes no code");
    Require(DoubledIn(remarks, text) == refused, "what is logged is remarked on");
}

constexpr std::size_t kEveryRight = 15;

std::size_t RightsOf(const SecurityItem& item) {
    return (item.AllowRead() ? 8u : 0u) + (item.AllowAdd() ? 4u : 0u) +
           (item.AllowModify() ? 2u : 0u) + (item.AllowDelete() ? 1u : 0u);
}

std::size_t ValueOf(char16_t digit) {
    const std::size_t at = std::u16string_view(u"0123456789ABCDEFabcdef").find(digit);
    return at > 21 ? 0 : at > kEveryRight ? at - 6 : at;
}

/// Builds the rights of a text after those of full access, and looks one up.
void CheckRights(const std::u16string& text, const std::u16string& asked) {
    FakeServices services;
    const auto former = CollectionBuilder::SecurityItems(services);
    CollectionBuilder::Add(*former, u"***");
    Require(RightsOf(*former->Item(asked)) == kEveryRight, "full access grants every right");
    const auto items = CollectionBuilder::SecurityItems(services);
    CollectionBuilder::Add(*items, text);
    if (text == u"***") return;

    std::map<std::u16string, std::size_t> granted;
    std::size_t sent = 0;
    for (const std::u16string& item : Cut(text, u'æ')) {
        if (item.empty()) continue;
        ++sent;
        granted.emplace(Folded(item.substr(0, item.size() - 1)), ValueOf(item.back()));
    }
    Require(static_cast<std::size_t>(items->Count()) == granted.size(), "the first of a key stays");
    Require(services.logged.size() == sent - granted.size(), "each further one is logged");
    Remarks remarks;
    Require(ServerTextCheck::Rights(text, remarks)->Count() == items->Count(),
            "a listener changes no right");
    Require(DoubledIn(remarks, text) == services.logged.size(), "what is logged is remarked on");

    granted.emplace(Folded(asked), 0);  // a key that was not sent
    const auto found = items->Item(asked);
    Require(items->Item(asked) == found, "a key gives the same item again");
    Require(static_cast<std::size_t>(items->Count()) == granted.size(), "a miss adds one item");
    std::int32_t position = 0;
    for (const auto& item : items) {
        Require(items->Item(++position) == item, "a position finds its item");
        Require(items->Item(item->ItemKey()) == item, "a key finds its item");
        Require(RightsOf(*item) == granted.at(Folded(item->ItemKey())), "no right but those sent");
    }
}

/// A workstation with one printer.
class OnePrinter : public PrinterSource {
    std::vector<PrinterConnection> Connections() override { return {{u"ipp://lab", u"Lab"}}; }
    std::vector<InstalledPrinter> Installed() override { return {}; }
};

/// Reads a list of printers and leaves out some kinds of them.
void CheckPrinters(const std::u16string& text, const PrinterFilter& filter) {
    FakeServices services;
    OnePrinter workstation;
    const auto printers = CollectionBuilder::Printers();
    PrinterListBuilder builder(*printers, workstation, services);
    builder.AddSerialPrinters(text);
    std::int32_t added = 0;
    std::size_t refused = 0;
    std::vector<std::u16string> passed;
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
        const bool isOut = isFile ? filter.excludeFile : isSpool || filter.excludeSerial;
        if (!isOut || (isSpool && !filter.excludeSpool)) passed.push_back(fields[0]);
    }
    Require(printers->Count() == added && services.logged.size() == refused, "kept or refused");
    Remarks remarks;
    Require(ServerTextCheck::Printers(text, remarks)->Count() == added, "a listener changes none");
    DoubledIn(remarks, text);

    builder.AddWorkstationPrinters();
    if (!filter.excludeWindows) passed.push_back(u"1WIN");
    const auto filtered = printers->Filtered(filter);
    Require(filtered->Count() == std::ssize(passed), "the filter lets the right ones pass");
    for (std::int32_t i = 1; const std::u16string& name : passed) {
        Require(filtered->Item(IntegerText(i++) + u"KEY")->PrinterID() == name, "by their numbers");
    }
}

void CheckReminder(const std::u16string& text) {
    ReminderDefinition reminder;
    reminder.PopulateReminder(u"7", text);
    Remarks remarks;
    Require(ServerTextCheck::Reminder(text, remarks).Tabs() == reminder.Tabs(),
            "a listener changes no reminder");
    DoubledIn(remarks, text);
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
        ++number;
        if (!lines[0].empty()) {
            titles.push_back(lines[0]);
            Require(reminder.TabNumber(static_cast<std::int32_t>(titles.size())) == number,
                    "a title leads to its tab");
        }
        lines.erase(lines.begin());
        std::erase(lines, u"");
        for (const auto& line : lines)
            isSpecific |= line.starts_with(u"p-") || line.starts_with(u"P-");
        lines.insert(lines.begin(), u"");
        Require(reminder.TabData(number) == StringArray(0, lines), "a tab has its lines");
    }
    Require(reminder.Tabs() == StringArray(1, titles), "the titles in order");
    Require(
        reminder.TabNumber(0) + reminder.TabNumber(static_cast<std::int32_t>(titles.size()) + 1) ==
            0,
        "no other title");
    Require(reminder.HasPatientSpecificData() == isSpecific, "patients' lines are noticed");
    Require(!reminder.TabData(static_cast<std::int16_t>(number + 1)).IsAllocated(), "no other tab");
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    switch (input.ConsumeIntegralInRange(0, 3)) {
        case 0:
            return CheckCodes(RestAsText(input, u"|ææææAaÉé1 "));
        case 1: {
            const std::u16string asked = FuzzText(input, 16);
            return CheckRights(RestAsText(input, u"æææPpÉé8fFGz*"), asked);
        }
        case 2: {
            PrinterFilter filter;
            for (bool* each : {&filter.excludeSpool, &filter.excludeFile, &filter.excludeWindows,
                               &filter.excludeSerial}) {
                *each = input.ConsumeBool();
            }
            return CheckPrinters(RestAsText(input, u"\t:::SFILE7"), filter);
        }
        default:
            return CheckReminder(RestAsText(input, u"æçæ£pP-1x"));
    }
}
