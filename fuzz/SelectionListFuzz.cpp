// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/core/ServerTextCheck.h>
#include <halvekutils/selection/SelectionList.h>
#include <halvekutils/selection/SelectionSearch.h>

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

/// As people type a name: the first letter of each row stands for all others of it.
std::u16string Plain(std::u16string text) {
    constexpr std::u16string_view kRows[] = {u"aAàáÀÁ",        u"eEèÉ",    u"sSšŠ",
                                             u"lLłŁ",          u"oOòøØ",   u"yYýŸ",
                                             u"'\u2018\u2019", u" \u00A0", u"æÆ"};
    for (char16_t& character : text) {
        for (const auto row : kRows) {
            if (row.find(character) != row.npos) character = row[0];
        }
    }
    return text;
}

/// 0 for the start of the code, 1 of the description, 2 of a word, 3 for inside; 4 for the entry
/// for all, 9 for nowhere.
int FitOf(const Entry& entry, const std::u16string& word, bool isForAll) {
    const std::u16string code = Plain(Trimmed(entry.code));
    int fit = 9;
    for (const bool isCode : {true, false}) {
        const std::u16string text = isCode ? code : Plain(Trimmed(entry.description));
        for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) {
            const bool isInside =
                at > 0 && std::u16string_view(u"aeosly1æß").find(text[at - 1]) != text.npos;
            fit = std::min(fit, at == 0 ? (isCode ? 0 : 1) : isInside ? 3 : 2);
        }
    }
    if (isForAll) return std::max(fit, 4);
    return code.empty() ? 9 : fit;
}

/// A search for what is typed letter by letter, beside one that looks at every place in every text.
void CheckSearch(const std::u16string& text, const std::u16string& typed, std::int32_t current) {
    const SelectionList list(text, false);
    const auto entries = EntriesOf(text, false);
    SelectionSearch search(list);
    for (std::size_t length = 0; length <= 2 * typed.size(); ++length) {
        const std::size_t taken = std::min(length, 2 * typed.size() - length);
        const std::u16string word = typed.substr(0, taken);
        search.Find(word);
        std::vector<std::int32_t> found;
        std::int32_t best = 0;
        int bestFit = 9;
        for (std::int32_t i = 1; i <= list.LastShown() && !word.empty(); ++i) {
            const int fit = FitOf(entries[static_cast<std::size_t>(i) - 1], Plain(word), i == 1);
            if (fit < 9) found.push_back(i);
            if (fit < bestFit) best = i;
            bestFit = std::min(fit, bestFit);
        }
        const auto at = std::ranges::find(found, current);
        const auto after = std::ranges::upper_bound(found, current);
        const auto before = std::ranges::lower_bound(found, current);
        Require(search.Best() == best && search.Count() == std::ssize(found), "the best of all");
        Require(search.PlaceOf(current) == (at == found.end() ? 0 : at - found.begin() + 1),
                "an entry's place among those found");
        if (found.empty()) continue;
        Require(
            search.NextAfter(current, false) == (after == found.end() ? found.front() : *after) &&
                search.NextAfter(current, true) ==
                    (before == found.begin() ? found.back() : *std::prev(before)),
            "the next one and the one before");
    }
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    constexpr std::u16string_view kLetters = u"::\t\taeosly'  -AEOSLYáÀøŁšß1×\u2019Æ";
    const bool doNotIncludeDeleted = input.ConsumeBool();
    const auto current = input.ConsumeIntegralInRange(0, 40);
    const std::u16string sought = FuzzText(input, 8);
    const std::u16string text = RestAsText(input, u":\tAb 1");
    CheckSearch(Narrowed(text, kLetters), Narrowed(sought, kLetters.substr(4)), current);
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
