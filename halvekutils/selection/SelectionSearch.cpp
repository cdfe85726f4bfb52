// SPDX-License-Identifier: MIT
#include <halvekutils/base/CharacterBlock.h>
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/PlainLetter.h>
#include <halvekutils/selection/SelectionSearch.h>

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace halvek {

namespace {

constexpr auto kPlain = [] {
    std::array<char16_t, 0x180> plain{};
    for (std::size_t i = 0; i < plain.size(); ++i) plain[i] = PlainLetter(static_cast<char16_t>(i));
    return plain;
}();

/// PlainLetter by a table of most characters that it may change.
char16_t Plain(char16_t character) {
    return character < kPlain.size() ? kPlain[character] : PlainLetter(character);
}

/// How well an entry fits, the best first.
enum Fit { StartsCode, StartsDescription, StartsWord, Contains, AllCodes, None };

bool IsInWord(char16_t character) {
    const char16_t plain = Plain(character);
    const bool isSymbol = plain == 0xD7 || plain == 0xF7 || (plain >= 0x2000 && plain < 0x2C00);
    return IsLetter(plain) || IsDigit(plain) || (plain >= 0xC0 && !isSymbol);
}

/// The next place, `at` or after it, where a word may begin: with this letter, or with a character
/// beyond ASCII, which may be the letter with an accent. A block at a time.
std::size_t NextStart(std::u16string_view text, std::size_t at, char16_t letter) {
    const bool isSmall = letter >= u'a' && letter <= u'z';
    const auto capital = static_cast<char16_t>(isSmall ? letter - (u'a' - u'A') : letter);
    for (; at + kBlockLength <= text.size(); at += kBlockLength) {
        const char16_t* const block = text.data() + at;
        const std::uint32_t starts =
            MaskOf(block, letter) | MaskOf(block, capital) | MaskOfOthers<1, 0x7E>(block);
        if (starts != 0) return at + static_cast<std::size_t>(std::countr_zero(starts));
    }
    while (at < text.size() && Plain(text[at]) != letter) ++at;
    return at;
}

/// Whether a text has the word at this place.
bool HasWordAt(std::u16string_view text, std::size_t at, std::u16string_view word) {
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (Plain(text[at + i]) != word[i]) return false;
    }
    return true;
}

/// The fit of a text in which `atStart` is the best that there is. Nobody needs to know one that is
/// not better than `best`, if only there is one.
Fit FitIn(std::u16string_view text, std::u16string_view word, Fit atStart, Fit best) {
    Fit fit = None;
    const char16_t letter = word.front();
    for (std::size_t at = NextStart(text, 0, letter); at + word.size() <= text.size();
         at = NextStart(text, at + 1, letter)) {
        if (!HasWordAt(text, at, word)) continue;
        if (at == 0) return atStart;
        if (!IsInWord(text[at - 1])) return StartsWord;
        fit = Contains;
        if (best <= StartsWord) break;
    }
    return fit;
}

}  // namespace

void SelectionSearch::Find(TextIn word) {
    std::u16string plain = word.Str();
    std::ranges::transform(plain, plain.begin(), Plain);
    const bool narrows = !word_.empty() && plain.find(word_) != plain.npos;
    std::vector<std::int32_t> found;
    std::int32_t best = 0;
    Fit bestFit = None;
    const auto look = [&](std::int32_t entry) {
        const SelectionList::Texts texts = list_.TextsOf(entry);
        const std::u16string_view code = Trimmed(texts.code);
        if (code.empty() && entry != SelectionList::kAllCodes) return;
        Fit fit = FitIn(code, plain, StartsCode, bestFit);
        if (fit == None || bestFit > StartsDescription) {
            fit =
                std::min(fit, FitIn(Trimmed(texts.description), plain, StartsDescription, bestFit));
        }
        if (fit == None) return;
        // Nobody ticks all entries by a name that the list lacks.
        if (entry == SelectionList::kAllCodes) fit = AllCodes;
        found.push_back(entry);
        if (fit < bestFit) best = entry;
        bestFit = std::min(bestFit, fit);
    };
    if (narrows) {
        for (const std::int32_t entry : found_) look(entry);
    } else if (!plain.empty()) {
        for (std::int32_t entry = 1; entry <= list_.LastShown(); ++entry) look(entry);
    }
    word_ = std::move(plain);
    found_ = std::move(found);
    best_ = best;
}

std::int32_t SelectionSearch::PlaceOf(std::int32_t entry) const {
    const auto at = std::ranges::lower_bound(found_, entry);
    const bool isFound = at != found_.end() && *at == entry;
    return isFound ? static_cast<std::int32_t>(at - found_.begin()) + 1 : 0;
}

std::int32_t SelectionSearch::NextAfter(std::int32_t entry, bool backwards) const {
    if (found_.empty()) return 0;
    if (backwards) {
        const auto at = std::ranges::lower_bound(found_, entry);
        return at == found_.begin() ? found_.back() : at[-1];
    }
    const auto at = std::ranges::upper_bound(found_, entry);
    return at == found_.end() ? found_.front() : *at;
}

}  // namespace halvek
