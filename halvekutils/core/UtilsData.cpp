// SPDX-License-Identifier: MIT
#include <halvekutils/core/NoPrinters.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/core/WayIn.h>
#include <halvekutils/platform/PrinterSource.h>
#include <halvekutils/refdata/CollectionBuilder.h>
#include <halvekutils/refdata/PrinterListBuilder.h>

#include <memory>
#include <utility>
#include <vector>

namespace halvek {

namespace {

std::unique_ptr<PrinterSource> ThePrinters() {
    Desktop* const desktop = Desktop::Installed();
    auto printers = desktop == nullptr ? nullptr : desktop->Printers();
    return printers == nullptr ? std::make_unique<NoPrinters>() : std::move(printers);
}

std::shared_ptr<UserPrefs> CopyOf(const UserPrefs& prefs) {
    auto copy = std::make_shared<UserPrefs>();
    copy->PopulateSettings(prefs.GetSettingsString());
    return copy;
}

}  // namespace

// Codes

void Utils::BuildCodesCollection(TextIn CodesData) {
    EnteredVoid(*this, OnFault::Quiet, u"BuildCodesCollection ", [&] {
        // The old collection goes first, even before the copy of the text: a build that fails
        // leaves part of the new one, never the old one.
        TheSession().codes = nullptr;
        const std::u16string data = Kept(CodesData);
        const auto codes = CollectionBuilder::Codes();
        TheSession().codes = codes;
        CollectionBuilder::Add(*codes, data, TheSession());
    });
}

std::shared_ptr<CodesCollection> Utils::GetCodesCollection() const {
    return TheSession().codes;
}
void Utils::ClearCodesCollection() {
    TheSession().codes = nullptr;
}

// Security items

void Utils::BuildSecurityCollection(TextIn SecurityData) {
    EnteredVoid(*this, OnFault::Beep, u"BuildSecurityCollection ", [&] {
        // Before anything can fail: no fault may leave earlier rights on, full access above all.
        CollectionBuilder::EndFullAccess();
        TheSession().securityItems = nullptr;
        const std::u16string data = Kept(SecurityData);
        const auto items = CollectionBuilder::SecurityItems(TheSession());
        TheSession().securityItems = items;
        CollectionBuilder::Add(*items, data);
    });
}

std::shared_ptr<SecurityItemsCollection> Utils::GetSecurityItemsCollection() const {
    return TheSession().securityItems;
}
void Utils::ClearSecurityCollection() {
    TheSession().securityItems = nullptr;
}

// Printers

void Utils::BuildPrintersCollection(TextIn SerialPrintersList) {
    const auto build = [](const std::u16string& serialPrinters) {
        if (TheSession().printers == nullptr) TheSession().printers = CollectionBuilder::Printers();
        const auto printers = TheSession().printers;
        const auto source = ThePrinters();
        PrinterListBuilder builder(*printers, *source, TheSession());
        builder.AddSerialPrinters(serialPrinters);
        builder.AddWorkstationPrinters();
    };
    EnteredVoid(*this, OnFault::Quiet, u"BuildPrintersCollection ", build, SerialPrintersList);
}

std::shared_ptr<PrintersCollection> Utils::GetPrintersCollection() const {
    return TheSession().printers;
}
void Utils::ClearPrintersCollection() {
    TheSession().printers = nullptr;
}

std::shared_ptr<PrintersCollection> Utils::GetPrintersCollectionFiltered(bool ExcludeSpool,
                                                                         bool ExcludeFile,
                                                                         bool ExcludeWindows,
                                                                         bool ExcludeSerial) {
    const auto filter = [&]() -> std::shared_ptr<PrintersCollection> {
        const auto printers = TheSession().printers;
        if (printers == nullptr) return nullptr;
        return printers->Filtered({ExcludeSpool, ExcludeFile, ExcludeWindows, ExcludeSerial});
    };
    return Entered(*this, OnFault::Quiet, u"GetPrintersCollectionFiltered ",
                   std::shared_ptr<PrintersCollection>(), filter);
}

// Preferences and open windows

std::shared_ptr<halvek::OpenWindows> Utils::OpenWindows() {
    if (d_->openWindows == nullptr) {
        d_->openWindows.reset(new halvek::OpenWindows(TheSession()));
    }
    return d_->openWindows;
}

void Utils::SetCurrentUserPrefs(const UserPrefs& CurrentUserPrefs) {
    d_->userPrefs = CopyOf(CurrentUserPrefs);
}

void Utils::SetCurrentSystemPrefs(std::shared_ptr<SystemPrefs> CurrentSystemPrefs) {
    d_->systemPrefs = std::move(CurrentSystemPrefs);
}

std::shared_ptr<SystemPrefs> Utils::GetCurrentSystemPrefs() {
    if (d_->systemPrefs == nullptr) d_->systemPrefs = std::make_shared<SystemPrefs>();
    return d_->systemPrefs;
}

std::shared_ptr<UserPrefs> Utils::GetCurrentUserPrefs() const {
    return d_->userPrefs == nullptr ? std::make_shared<UserPrefs>() : CopyOf(*d_->userPrefs);
}

// Bins

void Utils::AddBin(TextIn BinKey, TextIn BinData, TextIn BinType) {
    const auto add = [&](const std::u16string& key, const std::u16string& data,
                         const std::u16string& type) { d_->bins.Add(key, data, type); };
    EnteredVoid(*this, OnFault::Beep, u"Error in Utils.AddBin ", add, BinKey, BinData, BinType);
}

std::u16string Utils::GetBinData(TextIn BinKey) const {
    const DataBin* const bin = d_->bins.Find(BinKey);
    return bin == nullptr ? std::u16string() : bin->BinData();
}

bool Utils::BinExists(TextIn BinKey) const {
    return d_->bins.Find(BinKey) != nullptr;
}
void Utils::RemoveBin(TextIn BinKey) {
    d_->bins.Remove(BinKey);
}
void Utils::ClearAllBins() {
    d_->bins.Clear();
}

}  // namespace halvek
