// SPDX-License-Identifier: MIT
#include "Readings.h"

#include <array>
#include <cstdint>

namespace check {

namespace {

using namespace halvek;

constexpr Table::Kind kFlag = Table::Kind::Flag;

Reading ReadCodes(std::u16string text) {
    Reading reading{Table({{"CodeKey"},
                           {"CodeDescription"},
                           {"CodeHasLookup", kFlag},
                           {"IncludedInMenu", kFlag},
                           {"ReportName"},
                           {"SortByList"},
                           {"IsEntitySpecific", kFlag},
                           {"IsSystemCode", kFlag}}),
                    {}};
    const auto codes = ServerTextCheck::Codes(text, reading.remarks);
    for (const auto& code : codes) {
        reading.table.Add(code->CodeKey())
            .Add(code->CodeDescription())
            .Add(code->CodeHasLookup())
            .Add(code->IncludedInMenu())
            .Add(code->ReportName())
            .Add(code->SortByList())
            .Add(code->IsEntitySpecific())
            .Add(code->IsSystemCode());
    }
    return reading;
}

Reading ReadRights(std::u16string text) {
    Reading reading{Table({{"ItemKey"},
                           {"AllowRead", kFlag},
                           {"AllowAdd", kFlag},
                           {"AllowModify", kFlag},
                           {"AllowDelete", kFlag}}),
                    {}};
    const auto rights = ServerTextCheck::Rights(text, reading.remarks);
    if (rights == nullptr) {  // every key, and every right
        reading.table.Add(TextIn(text)).Add(true).Add(true).Add(true).Add(true);
        return reading;
    }
    for (const auto& item : rights) {
        reading.table.Add(item->ItemKey())
            .Add(item->AllowRead())
            .Add(item->AllowAdd())
            .Add(item->AllowModify())
            .Add(item->AllowDelete());
    }
    return reading;
}

Reading ReadPrinters(std::u16string text) {
    Reading reading{
        Table({{"PrinterID"}, {"PrinterType"}, {"PrinterDescription"}, {"PrinterPort"}}), {}};
    const auto printers = ServerTextCheck::Printers(text, reading.remarks);
    for (const auto& printer : printers) {
        reading.table.Add(printer->PrinterID())
            .Add(printer->PrinterType())
            .Add(printer->PrinterDescription())
            .Add(printer->PrinterPort());
    }
    return reading;
}

Reading ReadSettings(std::u16string text) {
    Reading reading{Table({{"Setting"}, {"Value"}}), {}};
    for (const auto& [name, value] : ServerTextCheck::Settings(text, reading.remarks)) {
        reading.table.Add(TextIn(name)).Add(TextIn(value));
    }
    return reading;
}

Reading ReadReminder(std::u16string text) {
    Reading reading{Table({{"Tab"}, {"Line"}}), {}};
    const ReminderDefinition reminder = ServerTextCheck::Reminder(text, reading.remarks);
    const StringArray titles = reminder.Tabs();
    for (std::int32_t title = 1; title <= titles.UBound(); ++title) {
        const StringArray lines = reminder.TabData(reminder.TabNumber(title));
        // A title without lines has one empty cell.
        for (std::int32_t line = lines.UBound() > 0 ? 1 : 0; line <= lines.UBound(); ++line) {
            reading.table.Add(TextIn(titles[title])).Add(TextIn(lines[line]));
        }
    }
    return reading;
}

Reading ReadSelection(std::u16string text) {
    Reading reading{Table({{"Code"}, {"Description"}, {"Deleted", kFlag}}), {}};
    const SelectionList list = ServerTextCheck::Selection(std::move(text), reading.remarks);
    for (std::int32_t entry = SelectionList::kAllCodes + 1; entry <= list.Count(); ++entry) {
        if (list.IsEmpty(entry)) continue;
        reading.table.Add(TextIn(list.Code(entry)))
            .Add(TextIn(list.Description(entry)))
            .Add(list.IsDeleted(entry));
    }
    return reading;
}

Reading ReadDates(std::u16string text) {
    Reading reading{Table({{"Date"}}), {}};
    for (const auto& date : ServerTextCheck::Dates(text, reading.remarks)) {
        reading.table.Add(date ? TextIn(DateTimeText(*date)) : TextIn());
    }
    return reading;
}

constexpr std::array<Format, 7> kFormats = {{
    {"codes", ReadCodes},
    {"rights", ReadRights},
    {"printers", ReadPrinters},
    {"settings", ReadSettings},
    {"reminder", ReadReminder},
    {"selection", ReadSelection},
    {"date", ReadDates},
}};

}  // namespace

std::span<const Format> Formats() {
    return kFormats;
}

}  // namespace check
