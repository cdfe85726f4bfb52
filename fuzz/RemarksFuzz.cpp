// SPDX-License-Identifier: MIT
#include "fuzz/FuzzText.h"
#include "tests/FakeServices.h"

#include <halvekutils/core/ServerTextCheck.h>
#include <halvekutils/prefs/UserPrefs.h>
#include <halvekutils/refdata/CollectionBuilder.h>

using namespace halvek;

namespace {

void CheckPlaces(const std::u16string& text, const Remarks& remarks) {
    std::size_t record = 1;
    for (const Remark& remark : remarks.All()) {
        Require(remark.record >= record, "records are remarked on in their order");
        Require(remark.position <= text.size(), "a remark lies in the text");
        Require(!remark.text.empty(), "a remark says something");
        record = remark.record;
    }
}

void CheckCodes(const std::u16string& text) {
    Remarks remarks;
    const auto heard = ServerTextCheck::Codes(text, remarks);
    CheckPlaces(text, remarks);
    FakeServices services;
    const auto codes = CollectionBuilder::Codes();
    CollectionBuilder::Add(*codes, text, services);
    Require(heard->Count() == codes->Count(), "a listener changes no code");
    std::size_t doubled = 0;
    for (const Remark& remark : remarks.All()) doubled += remark.kind == RemarkKind::Doubled;
    Require(doubled == services.logged.size(), "what is logged is remarked on");
}

void CheckRights(const std::u16string& text) {
    Remarks remarks;
    const auto heard = ServerTextCheck::Rights(text, remarks);
    CheckPlaces(text, remarks);
    FakeServices services;
    const auto items = CollectionBuilder::SecurityItems(services);
    CollectionBuilder::Add(*items, text);
    Require(heard == nullptr || heard->Count() == items->Count(), "a listener changes no right");
    CollectionBuilder::EndFullAccess();
}

void CheckPrinters(const std::u16string& text) {
    Remarks remarks;
    ServerTextCheck::Printers(text, remarks);
    CheckPlaces(text, remarks);
}

void CheckSettings(const std::u16string& text) {
    Remarks remarks;
    std::u16string heard;
    for (const auto& [name, value] : ServerTextCheck::Settings(text, remarks)) {
        heard += value + u'ß';
    }
    CheckPlaces(text, remarks);
    UserPrefs prefs;
    prefs.PopulateSettings(text);
    Require(heard == prefs.GetSettingsString() + u'ß', "a listener changes no setting");
}

void CheckReminder(const std::u16string& text) {
    Remarks remarks;
    const auto heard = ServerTextCheck::Reminder(text, remarks);
    CheckPlaces(text, remarks);
    ReminderDefinition reminder;
    reminder.PopulateReminder(u"7", text);
    Require(heard.Tabs() == reminder.Tabs(), "a listener changes no reminder");
}

void CheckSelection(const std::u16string& text) {
    Remarks remarks;
    const auto heard = ServerTextCheck::Selection(text, remarks);
    CheckPlaces(text, remarks);
    const SelectionList list(text, false);
    Require(heard.Count() == list.Count(), "a listener changes no list");
    std::size_t doubled = 0;
    for (std::int32_t entry = 2; entry <= list.LastShown(); ++entry) {
        const std::u16string code = Trimmed(std::u16string(list.Code(entry)));
        if (!code.empty() && list.Find(code) != entry) ++doubled;
    }
    for (const Remark& remark : remarks.All()) {
        if (remark.kind != RemarkKind::Doubled) continue;
        const auto entry = static_cast<std::int32_t>(remark.record);
        if (entry <= list.LastShown()) --doubled;
    }
    Require(doubled == 0, "every code that is there twice is remarked on");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const std::u16string text = RestAsText(input);
    CheckCodes(Narrowed(text, u"|ææææAa1x "));
    CheckRights(Narrowed(text, u"æAaFX*"));
    CheckPrinters(Narrowed(text, u"\t:::SFILE7"));
    CheckSettings(Narrowed(text, u"ßßßß|1-.eTx"));
    CheckReminder(Narrowed(text, u"æçæ£pP-1x"));
    CheckSelection(Narrowed(text, u":\t\tA01 "));
    Remarks remarks;
    const std::u16string dates = Narrowed(text, u"0123456789,,\n-.x");
    ServerTextCheck::Dates(dates, remarks);
    CheckPlaces(dates, remarks);
    return 0;
}
