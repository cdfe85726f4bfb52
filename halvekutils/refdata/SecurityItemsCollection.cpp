// SPDX-License-Identifier: MIT
#include <halvekutils/base/CharacterScan.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Remarks.h>
#include <halvekutils/platform/Beep.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/refdata/SecurityItemsCollection.h>

#include <algorithm>
#include <utility>

namespace halvek {

namespace {

constexpr char16_t kItemSeparator = 230;
constexpr std::u16string_view kFullAccessData = u"***";
constexpr char16_t kEveryRight = u'F';
constexpr char16_t kNoRight = u'0';

bool fullAccess = false;

void RemarkOn(TextIn piece, bool taken, Remarks& remarks) {
    const TextIn key = piece.substr(0, piece.size() - 1);
    const TextIn digit = piece.substr(key.size());
    if (key.empty() && !taken) remarks.Add(RemarkKind::Defaulted, 0, key, u"item without a key");
    if (taken) {
        remarks.Add(RemarkKind::Doubled, 0, key,
                    u"key " + Quoted(key) + u" is taken: item left out");
    }
    if (digit.find_first_of(u"0123456789ABCDEFabcdef") == digit.npos) {
        remarks.Add(RemarkKind::Defaulted, 1, digit,
                    Quoted(digit) + u" is not a hexadecimal digit: no rights");
    }
}

}  // namespace

SecurityItemsCollection::SecurityItemsCollection(Services& services) : services_(services) {}
SecurityItemsCollection::~SecurityItemsCollection() = default;

std::shared_ptr<SecurityItemsCollection> SecurityItemsCollection::CreateEmpty(Services& services) {
    return std::shared_ptr<SecurityItemsCollection>(new SecurityItemsCollection(services));
}

void SecurityItemsCollection::EndFullAccess() noexcept {
    fullAccess = false;
}

bool SecurityItemsCollection::HasFullAccess() noexcept {
    return fullAccess;
}

std::shared_ptr<SecurityItem> SecurityItemsCollection::Item(std::int32_t position) {
    if (position >= 1 && position <= Count()) {
        const auto& found = items_.Item(position);
        if (fullAccess) found->Init(IntegerText(position), kEveryRight);
        return found;
    }
    std::shared_ptr<SecurityItem> item = store_.Make();
    if (fullAccess) item->Init(IntegerText(position), kEveryRight);
    items_.Add(item, item->itemKey_);
    return item;
}

std::shared_ptr<SecurityItem> SecurityItemsCollection::Item(TextIn key) {
    if (const auto* const found = items_.Find(key)) {
        if (fullAccess) (*found)->Init(key, kEveryRight);
        return *found;
    }
    std::shared_ptr<SecurityItem> item = store_.Make();
    item->Init(key, fullAccess ? kEveryRight : kNoRight);
    items_.Add(item, key);
    if (!fullAccess) ReportMissing(key);
    return item;
}

std::int32_t SecurityItemsCollection::Count() const {
    return items_.Count();
}

void SecurityItemsCollection::AddItems(TextIn securityData, Remarks* remarks) {
    fullAccess = securityData == kFullAccessData;
    if (fullAccess) return;
    MakeRoomFor(securityData);
    if (remarks != nullptr) remarks->Begin(securityData);
    for (const TextIn piece : Pieces(securityData, kItemSeparator)) {
        if (remarks != nullptr) remarks->NextRecord();
        if (!piece.empty()) {
            Add(piece, remarks);
        } else if (remarks != nullptr) {
            remarks->OnEmptyRecord(securityData, piece);
        }
    }
}

void SecurityItemsCollection::MakeRoomFor(TextIn securityData) {
    const std::size_t separators = CountOf(securityData, kItemSeparator);
    const std::size_t characters = securityData.size() - separators;
    // Pieces can be empty, but every item has its digit.
    const std::size_t most = std::min(separators + 1, characters);
    items_.Reserve(most, characters);
}

void SecurityItemsCollection::Add(TextIn piece, Remarks* remarks) {
    const TextIn key = piece.substr(0, piece.size() - 1);
    const char16_t rightsDigit = piece.back();
    if (remarks != nullptr) RemarkOn(piece, items_.Find(key) != nullptr, *remarks);
    std::shared_ptr<SecurityItem> item = store_.Make();
    item->Init(key, rightsDigit);
    const auto prefix = [&] { return u"AddSecurity Item error: " + key.Str() + u' '; };
    Guarded(OnFault::Quiet, prefix, services_, [&] { items_.Add(std::move(item), key); });
}

void SecurityItemsCollection::ReportMissing(TextIn key) {
    // The item exists: the look-up must not fail because memory runs out for the report.
    Quietly(false, [&] {
        const bool asked = services_.DebugMode() ||
                           services_.SpecialMode().find(u"check security") != std::u16string::npos;
        if (!asked) return false;
        Beep();
        services_.LogError(key.Str() + u" security item was not found");
        return true;
    });
}

}  // namespace halvek
