// SPDX-License-Identifier: MIT
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Remarks.h>
#include <halvekutils/platform/Beep.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/refdata/CodesCollection.h>

#include <string>

namespace halvek {

namespace {

constexpr char16_t kRecordSeparator = u'|';

}  // namespace

CodesCollection::CodesCollection() = default;
CodesCollection::~CodesCollection() = default;

std::shared_ptr<CodesCollection> CodesCollection::CreateEmpty() {
    return std::shared_ptr<CodesCollection>(new CodesCollection);
}

std::shared_ptr<CodeDefinition> CodesCollection::Item(std::int32_t position) const {
    return definitions_.Item(position);
}

std::shared_ptr<CodeDefinition> CodesCollection::Item(TextIn key) const {
    return definitions_.Item(key);
}

std::int32_t CodesCollection::Count() const {
    return definitions_.Count();
}

void CodesCollection::AddRecords(TextIn codesData, Services& services, Remarks* remarks) {
    if (remarks != nullptr) remarks->Begin(codesData);
    for (const TextIn record : Pieces(codesData, kRecordSeparator)) {
        if (remarks != nullptr) remarks->NextRecord();
        if (!record.empty()) {
            AddRecord(record, services, remarks);
        } else if (remarks != nullptr) {
            remarks->OnEmptyRecord(codesData, record);
        }
    }
}

void CodesCollection::AddRecord(TextIn record, Services& services, Remarks* remarks) {
    const std::shared_ptr<CodeDefinition> definition = store_.Make();
    definition->Init(record, remarks);
    const TextIn key = definition->ViewOf(definition->codeKey_);
    try {
        if (key.empty()) {
            definitions_.Add(definition);
        } else {
            definitions_.Add(definition, key);
        }
    } catch (const std::exception& caught) {
        services.LogError(u"Error adding to CodesCollection in HalvekUtils.Add:\r\n" +
                          AsRuntimeError(caught).Description() +
                          u"\r\n\r\nPossible duplicate CodeKey/CodeDescription:  " + key.Str() +
                          u'/' + definition->CodeDescription());
        if (services.DebugMode()) Beep();
        if (remarks != nullptr) {
            remarks->Add(RemarkKind::Doubled, 1, record.substr(definition->codeKey_.start),
                         u"CodeKey " + Quoted(key) + u" is taken: record left out");
        }
    }
}

}  // namespace halvek
