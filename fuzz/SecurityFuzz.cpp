// SPDX-License-Identifier: MIT
#include "fuzz/FuzzText.h"
#include "tests/FakeServices.h"

#include <halvekutils/refdata/CollectionBuilder.h>

#include <map>

using namespace halvek;

namespace {

constexpr std::size_t kEveryRight = 15;

std::size_t RightsOf(const SecurityItem& item) {
    return (item.AllowRead() ? 8u : 0u) + (item.AllowAdd() ? 4u : 0u) +
           (item.AllowModify() ? 2u : 0u) + (item.AllowDelete() ? 1u : 0u);
}

std::size_t ValueOf(char16_t digit) {
    const std::size_t lower = std::u16string_view(u"0123456789abcdef").find(digit);
    const std::size_t upper = std::u16string_view(u"0123456789ABCDEF").find(digit);
    return lower <= kEveryRight ? lower : upper <= kEveryRight ? upper : 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const std::u16string asked = FuzzText(input, 16);
    const std::u16string text = RestAsText(input, u"æææPpÉé8fFGz*");
    FakeServices services;
    const auto former = CollectionBuilder::SecurityItems(services);
    CollectionBuilder::Add(*former, u"***");
    Require(RightsOf(*former->Item(asked)) == kEveryRight, "full access grants every right");

    const auto items = CollectionBuilder::SecurityItems(services);
    CollectionBuilder::Add(*items, text);
    if (text == u"***") return 0;

    std::map<std::u16string, std::size_t> granted;
    std::size_t sent = 0;
    for (const std::u16string& item : Cut(text, 230)) {
        if (item.empty()) continue;
        ++sent;
        granted.emplace(Folded(item.substr(0, item.size() - 1)), ValueOf(item.back()));
    }
    Require(static_cast<std::size_t>(items->Count()) == granted.size(), "the first of a key stays");
    Require(services.logged.size() == sent - granted.size(), "each further one is logged");

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
    return 0;
}
