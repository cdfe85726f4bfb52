// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/core/ServerTextCheck.h>
#include <halvekutils/selection/SelectionList.h>

#include <algorithm>
#include <map>

using namespace halvek;

namespace {

struct Entry {
    std::u16string code;
    std::u16string description;
    bool deleted = false;
};

/// The entries of a list, each cut from its text by itself.
std::vector<Entry> EntriesOf(const std::u16string& text, bool doNotIncludeDeleted) {
    std::vector<Entry> entries = {{u" ", u" *** ALL CODES *** "}};
    const auto pieces =
        Cut(text + u':', u':');  // one piece too many, since a list's last piece also ends in ":"
    std::size_t fieldCount = 0;
    for (std::size_t i = 1; i + 1 < pieces.size(); ++i) {
        const auto fields = Cut(pieces[i], u'\t');
        if (fieldCount == 0 && !pieces[i].empty()) fieldCount = fields.size();
        const bool hasFlag = fieldCount > 0 && fields.size() >= fieldCount;
        const bool deleted = hasFlag && fields[fieldCount - 1] == u"1";
        if (doNotIncludeDeleted && deleted) continue;
        entries.push_back({fields[0], fields.size() > 1 ? fields[1] : u"", deleted});
    }
    return entries;
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    const bool doNotIncludeDeleted = input.ConsumeBool();
    const std::u16string sought = FuzzText(input, 8);
    const std::u16string text = RestAsText(input, u":\tAb 1");
    const SelectionList list(text, doNotIncludeDeleted);
    const auto entries = EntriesOf(text, doNotIncludeDeleted);
    const auto count = static_cast<std::int32_t>(entries.size());
    const std::int32_t bands = (count - 1) / 10 + ((count - 1) % 10 != 0 ? 1 : 0);

    Require(list.Count() == count, "each piece is an entry");
    Require(list.RowCount() == 3 * bands, "a band has three rows");
    Require(list.LastShown() == std::min(count, 10 * bands), "the bands hold what is shown");
    std::size_t longest = 0;
    std::size_t longestName = 0;
    std::size_t doubled = 0;
    std::map<std::u16string, std::int32_t> first = {{u"", 0}};
    for (std::int32_t i = 1; i <= count; ++i) {
        const Entry& entry = entries[static_cast<std::size_t>(i) - 1];
        const std::u16string code = Trimmed(entry.code);
        longest = std::max(longest, code.size());
        if (i > 1) longestName = std::max(longestName, entry.description.size());
        if (i <= list.LastShown() && !first.emplace(code, i).second && !code.empty()) ++doubled;
        Require(list.Code(i) == entry.code, "field 1 is the code");
        Require(list.Description(i) == entry.description, "field 2 is the description");
        Require(list.IsDeleted(i) == entry.deleted, "the last field is the flag");
        Require(list.HasCode(i) == (i == 1 || !code.empty()), "a blank is no code");
    }
    Require(list.LongestCodeLength() == static_cast<std::int32_t>(longest), "the longest code");
    for (const auto& [code, number] : first) {
        Require(list.Find(code) == number, "a code finds its first entry");
    }
    std::size_t kept = 0;
    for (const auto name : list.LongestDescriptions()) kept = std::max(kept, name.size());
    Require(kept == longestName, "the longest description is kept");
    first.erase(u"");
    std::erase_if(first, [&](const auto& code) { return !EqualFolded(code.first, sought); });
    Require(list.FindInAnyCase(sought) == (first.size() == 1 ? first.begin()->second : 0),
            "only one code in other letter case is meant");
    const auto found = first.find(sought);
    Require(list.Find(sought) == (found == first.end() ? 0 : found->second), "no other is found");

    if (doNotIncludeDeleted) return;
    Remarks remarks;
    Require(ServerTextCheck::Selection(text, remarks).Count() == count, "a listener changes none");
    const std::size_t beyond = count > list.LastShown() ? 1 : 0;  // the last entry, which is hidden
    const std::size_t heard = DoubledIn(remarks, text);
    Require(heard == doubled || heard == doubled + beyond, "a code that is taken is remarked on");
}
