// SPDX-License-Identifier: MIT
#include "fuzz/FuzzText.h"
#include "tests/FakeServices.h"

#include <halvekutils/refdata/CollectionBuilder.h>

#include <set>

using namespace halvek;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const std::u16string text = RestAsText(input, u"|ææAaÉé1");
    const auto codes = CollectionBuilder::Codes();
    FakeServices services;
    CollectionBuilder::Add(*codes, text, services);

    std::set<std::u16string> keys;
    for (const auto& code : codes) {
        if (code->CodeKey().empty()) continue;
        Require(keys.insert(Folded(code->CodeKey())).second, "no key is there twice");
        Require(codes->Item(code->CodeKey()) == code, "a key finds its own record");
    }
    std::size_t records = 0;
    for (const std::u16string& record : Cut(text, u'|')) records += record.empty() ? 0 : 1;
    Require(records == static_cast<std::size_t>(codes->Count()) + services.logged.size(),
            "every record is kept or refused");
    return 0;
}
