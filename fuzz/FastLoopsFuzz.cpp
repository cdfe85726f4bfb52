// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "tests/FakeServices.h"

#include <halvekutils/base/CharacterScan.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/text/CharacterFilter.h>

using namespace halvek;

namespace {

constexpr std::u16string_view kCapitals =
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZŠŒŽŸÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ";
constexpr std::u16string_view kSmall =
    u"abcdefghijklmnopqrstuvwxyzšœžÿàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ";
static_assert(kCapitals.size() == kSmall.size());

char16_t Lowered(char16_t character) {
    const std::size_t at = kCapitals.find(character);
    return at == kCapitals.npos ? character : kSmall[at];
}

char16_t Raised(char16_t character) {
    const std::size_t at = kSmall.find(character);
    return at == kSmall.npos ? character : kCapitals[at];
}

void CheckMasks(std::u16string_view text, char16_t wanted) {
    for (std::size_t at = 0; at + kBlockLength <= text.size(); ++at) {
        const char16_t* const block = text.data() + at;
        Require(MaskOf(block, wanted) == PortableMaskOf(block, wanted), "both masks agree");
        Require(MaskOfOthers<u' ', u'~', u':', u'|'>(block) ==
                    PortableMaskOfOthers<u' ', u'~', u':', u'|'>(block),
                "both masks of others agree");
    }
}

void CheckScan(std::u16string_view text, char16_t one, char16_t other, std::size_t skipped) {
    std::vector<std::size_t> places;
    std::size_t pairs = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == one || text[i] == other) places.push_back(i);
        if (i > 0 && text[i - 1] == one && text[i] == other) ++pairs;
    }
    if (one != other) Require(CountOfPair(text, one, other) == pairs, "pairs are counted");
    const auto ones = static_cast<std::size_t>(std::count(text.begin(), text.end(), one));
    Require(CountOf(text, one) == ones, "characters are counted");
    CharacterScan scan(text, one, other);
    for (std::size_t i = 0;; ++i) {
        const std::size_t place = scan.Next();
        Require(place == (i < places.size() ? places[i] : scan.kNone), "a scan misses nothing");
        if (place == scan.kNone) break;
        scan.Skip(skipped);
        i += skipped;
    }
}

void CheckFolding(const std::u16string& text, std::u16string_view other) {
    std::u16string lowered = text, raised = text;
    std::transform(text.begin(), text.end(), lowered.begin(), Lowered);
    std::transform(text.begin(), text.end(), raised.begin(), Raised);
    Require(Folded(text) == lowered, "letters fold as in the alphabet");
    Require(EqualFolded(text, raised) && HashFolded(text) == HashFolded(raised), "case is ignored");
    const std::u16string_view same = std::u16string_view(text).substr(0, other.size());
    const bool equal = std::equal(same.begin(), same.end(), other.begin(), other.end(),
                                  [](char16_t a, char16_t b) { return Lowered(a) == Lowered(b); });
    Require(EqualFolded(same, other) == equal, "what is equal when folded");
}

void CheckFilters(const std::u16string& text) {
    std::u16string wanted, visible;
    for (const char16_t character : text) {
        const std::uint8_t code = CodeOf(character);
        if (!IsUnwantedChar(code)) wanted += CharacterOf(code);
        const bool shown = code >= 32 && code <= 126;
        visible += shown ? std::u16string(1, code) : u'<' + IntegerText(code) + u'>';
        if (code == u'\r') visible += u"\r\n";
    }
    std::u16string filtered;
    const bool found = RemoveUnwantedChars(text, filtered).found;
    Require(filtered == wanted && found == (wanted.size() != text.size()), "unwanted ones go");
    Require(RemoveUnprintableChars(text) == visible, "unprintable ones are shown");
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    FakeServices session;
    Services::Install(&session);
    const auto one = static_cast<char16_t>(input.ConsumeIntegral<std::uint8_t>());
    const auto other = static_cast<char16_t>(input.ConsumeIntegral<std::uint8_t>());
    const auto skipped = input.ConsumeIntegralInRange<std::size_t>(0, 40);
    const bool isWide = input.ConsumeBool();
    const std::u16string sought = FuzzText(input, 12);
    std::u16string text = RestAsText(input);
    if (isWide) {  // characters of both bytes
        for (std::size_t i = 0; i + 1 < text.size(); i += 2)
            text[i] |= static_cast<char16_t>(text[i + 1] << 8);
    }
    CheckMasks(text, one);
    CheckScan(text, one, other, skipped);
    CheckFolding(text, sought);
    CheckFilters(text);
}
