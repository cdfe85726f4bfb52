// SPDX-License-Identifier: MIT
#include <halvekutils/selection/SelectionSearch.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace halvek {
namespace {

using Text = std::u16string;

/// As people type a name: the first letter of each row stands for all others of it.
Text Plain(Text text) {
    constexpr const char16_t* kRows[] = {
        u"aAàáâãäåÀÁÂÃÄÅāĂą", u"eEèéêëÈÉÊËĒęě", u"sSšŠśŞ", u"lLłŁ", u"oOòóôõöøÒÓÔÕÖØőŌ", u"yYýÿÝŸ",
        u"'\u2018\u2019",     u" \u00A0",       u"æÆ"};
    for (char16_t& character : text) {
        for (const Text row : kRows) {
            if (row.find(character) != Text::npos) character = row[0];
        }
    }
    return text;
}

Text WithoutBlanks(const Text& text) {
    const std::size_t start = text.find_first_not_of(u' ');
    if (start == Text::npos) return {};
    return text.substr(start, text.find_last_not_of(u' ') - start + 1);
}

/// The search written plainly: every place in every text is looked at.
struct PlainSearch {
    struct Entry {
        Text code, description;
    };
    std::vector<Entry> entries = {{u" ", u" *** ALL CODES *** "}};
    std::vector<int> found;
    int best = 0;

    static int FitIn(const Text& text, const Text& word, int atStart) {
        int fit = 9;
        for (std::size_t at = text.find(word); at != Text::npos; at = text.find(word, at + 1)) {
            const bool isInside = at > 0 && Text(u"aeosly1æß").find(text[at - 1]) != Text::npos;
            fit = std::min(fit, at == 0 ? atStart : isInside ? 3 : 2);
        }
        return fit;
    }

    /// 0 for the start of the code, 1 of the description, 2 of a word, 3 for inside; 4 for the
    /// entry for all, 9 for nowhere.
    int FitOf(std::size_t entry, const Text& word) const {
        const Text code = Plain(WithoutBlanks(entries[entry].code));
        const Text description = Plain(WithoutBlanks(entries[entry].description));
        const int fit = std::min(FitIn(code, word, 0), FitIn(description, word, 1));
        if (entry == 0) return std::max(fit, 4);
        return code.empty() ? 9 : fit;
    }

    void Find(const Text& word) {
        found.clear();
        best = 0;
        int bestFit = 9;
        for (std::size_t i = 0; i < entries.size() && !word.empty(); ++i) {
            const int fit = FitOf(i, Plain(word));
            if (fit == 9) continue;
            found.push_back(static_cast<int>(i) + 1);
            if (fit < bestFit) best = found.back();
            bestFit = std::min(fit, bestFit);
        }
    }
};

class Typist {
  public:
    Text Some(std::size_t longest) {
        constexpr std::u16string_view kLetters = u"aeosly'  -AEOSLYáÀøŁšß1*×\u2019Æ";
        Text text;
        for (std::size_t length = random_() % (longest + 1); length > 0; --length) {
            text += kLetters[random_() % kLetters.size()];
        }
        return text;
    }
    int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

  private:
    std::mt19937 random_{20261122};
};

void Compare(const SelectionSearch& search, const PlainSearch& plain, int entry) {
    const auto& found = plain.found;
    EXPECT_EQ(search.Best(), plain.best);
    ASSERT_EQ(search.Count(), static_cast<int>(found.size()));
    const auto at = std::ranges::find(found, entry);
    EXPECT_EQ(search.PlaceOf(entry), at == found.end() ? 0 : at - found.begin() + 1);
    int next = found.empty() ? 0 : found.front();
    int before = found.empty() ? 0 : found.back();
    for (const int other : found) before = other < entry ? other : before;
    for (auto other = found.rbegin(); other != found.rend(); ++other) {
        next = *other > entry ? *other : next;
    }
    EXPECT_EQ(search.NextAfter(entry, false), next);
    EXPECT_EQ(search.NextAfter(entry, true), before);
}

TEST(SelectionSearch, FindsWhatAPlainSearchFinds) {
    Typist typist;
    int hits = 0;
    for (int round = 0; round < 400; ++round) {
        PlainSearch plain;
        Text text = u"Header";
        for (int i = typist.Below(35); i > 0; --i) {
            plain.entries.push_back({typist.Some(3), typist.Some(9)});
            const auto& entry = plain.entries.back();
            text += u':' + entry.code + u'\t' + entry.description + u"\t0";
        }
        const SelectionList list(text + u':', false);
        plain.entries.resize(static_cast<std::size_t>(
            std::min(static_cast<int>(plain.entries.size()), list.LastShown())));
        SelectionSearch search(list);
        Text word;
        for (int key = 0; key < 12; ++key) {
            word = typist.Below(4) == 0 ? word.substr(0, word.size() / 2) : word + typist.Some(1);
            search.Find(word);
            plain.Find(word);
            hits += search.Count() > 0 ? 1 : 0;
            Compare(search, plain, typist.Below(40));
            ASSERT_FALSE(HasFailure()) << "round " << round << ", key " << key;
        }
    }
    EXPECT_GT(hits, 1000);
}

}  // namespace
}  // namespace halvek
