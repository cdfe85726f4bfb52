// SPDX-License-Identifier: MIT
#include <halvekutils/base/Pieces.h>
#include <halvekutils/core/NoPrinters.h>
#include <halvekutils/core/ServerTextCheck.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/platform/NoServices.h>
#include <halvekutils/prefs/UserPrefs.h>
#include <halvekutils/refdata/CollectionBuilder.h>
#include <halvekutils/refdata/PrinterListBuilder.h>
#include <halvekutils/text/ServerDates.h>

namespace halvek {

namespace {

/// What ConvertHDate reads.
std::optional<DateTime> DateOf(TextIn text, Remarks& remarks) {
    if (text.empty()) {
        remarks.Add(RemarkKind::Ignored, 0, text, u"empty text: no date");
        return std::nullopt;
    }
    const auto when = ReadServerDate(text, *TheSession().machine, &remarks);
    if (!when || (*when >= kFirstDateTime && *when <= kLastDateTime)) return when;
    remarks.Add(RemarkKind::Ignored, 0, text,
                u"day " + Quoted(text) + u" is beyond all dates: no date");
    return std::nullopt;
}

/// Outlives every collection.
Services& Silent() {
    static NoServices services;
    return services;
}

}  // namespace

std::shared_ptr<CodesCollection> ServerTextCheck::Codes(TextIn text, Remarks& remarks) {
    auto codes = CollectionBuilder::Codes();
    CollectionBuilder::Add(*codes, text, Silent(), &remarks);
    return codes;
}

std::shared_ptr<SecurityItemsCollection> ServerTextCheck::Rights(TextIn text, Remarks& remarks) {
    auto items = CollectionBuilder::SecurityItems(Silent());
    CollectionBuilder::Add(*items, text, &remarks);
    return CollectionBuilder::HasFullAccess() ? nullptr : items;
}

std::shared_ptr<PrintersCollection> ServerTextCheck::Printers(TextIn text, Remarks& remarks) {
    auto printers = CollectionBuilder::Printers();
    NoPrinters none;
    PrinterListBuilder(*printers, none, Silent()).AddSerialPrinters(text, &remarks);
    return printers;
}

std::vector<std::pair<std::u16string_view, std::u16string>> ServerTextCheck::Settings(
    TextIn text, Remarks& remarks) {
    UserPrefs prefs;
    prefs.Populate(text, &remarks);
    return prefs.Fields();
}

ReminderDefinition ServerTextCheck::Reminder(TextIn text, Remarks& remarks) {
    ReminderDefinition reminder;
    reminder.Read(text, &remarks);
    return reminder;
}

SelectionList ServerTextCheck::Selection(std::u16string text, Remarks& remarks) {
    return SelectionList(std::move(text), false, &remarks);
}

std::vector<std::optional<DateTime>> ServerTextCheck::Dates(TextIn text, Remarks& remarks) {
    remarks.Begin(text);
    std::vector<std::optional<DateTime>> dates;
    for (TextIn line : Pieces(text, u'\n')) {
        if (line.ends_with(u'\r')) line.remove_suffix(1);
        remarks.NextRecord();
        dates.push_back(DateOf(line, remarks));
    }
    return dates;
}

}  // namespace halvek
