// SPDX-License-Identifier: MIT
// What only the library does. A host's compiler refuses every line between #ifdef and #endif, each
// for itself; it takes the rest, and with the library's own headers and no access control all.
#include <halvekutils/base/ObjectStore.h>
#include <halvekutils/core/DataBin.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/Utils.h>

#if __has_include(<halvekutils/core/Session.h>)
#include <halvekutils/core/Session.h>
#endif
#if __has_include(<halvekutils/platform/Services.h>)
#include <halvekutils/platform/Services.h>
#endif
#if __has_include(<halvekutils/refdata/CollectionBuilder.h>)
#include <halvekutils/refdata/CollectionBuilder.h>
#endif

using namespace halvek;

int main() {
    const auto utils = Utils::Create();
    const auto codes = utils->GetCodesCollection();
    const auto rights = utils->GetSecurityItemsCollection();
    const auto printers = utils->GetPrintersCollection();
#ifdef HALVEK_DOORS
    TheSession().debugMode = true;
    CollectionBuilder::Add(*rights, u"***");
    rights->AddItems(u"***", nullptr);
    rights->Item(1)->Init(u"PATIENTS", u'F');
    SecurityItemsCollection::EndFullAccess();
    SecurityItemsCollection::CreateEmpty(Services::Current());
    ObjectStore<SecurityItem>().Make();
    codes->AddRecords(u"Insurance\u00E6INS", Services::Current(), nullptr);
    codes->Item(1)->Init(u"Insurance\u00E6INS\u00E61\u00E61\u00E6\u00E6", nullptr);
    CodesCollection::CreateEmpty();
    ObjectStore<CodeDefinition>().Make();
    printers->Add(PrinterFields{}, 7);
    const PrinterDefinition printer(PrinterFields{});
    PrintersCollection::CreateEmpty();
    const OpenWindows windows(Services::Current());
    const DataBin bin;
#endif
    return codes == nullptr && rights == nullptr && printers == nullptr ? 0 : 1;
}
