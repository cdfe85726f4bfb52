// SPDX-License-Identifier: MIT
// Encodings, scans, letter case and filters of any text, against plain loops.
#include "fuzz/FuzzTarget.h"
#include "tests/FakeServices.h"

#include <halvekutils/base/CharacterScan.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/text/CharacterFilter.h>

using namespace halvek;

namespace {

/// What the bytes 0x80 to 0x9F stand for; every other byte is the character of its number.
constexpr std::u16string_view kOfTheCodePage =
    u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ";

void CheckCodePage(const std::string& bytes) {
    const std::u16string text = FromCodePage(bytes);
    Require(ToCodePage(text) == bytes, "every byte of the code page comes back");
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        const bool isOdd = byte >= 0x80 && byte < 0xA0;
        Require(text[i] == (isOdd ? kOfTheCodePage[byte - 0x80] : byte), "a byte's character");
    }
}

/// Whether a unit is half of a pair: the first halves begin at D800, the second ones at DC00.
bool IsHalf(char16_t unit, char16_t first) {
    return unit >= first && unit < first + 0x400;
}

/// The text with U+FFFD for each surrogate that stands alone.
std::u16string WellFormed(std::u16string text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isHigh = IsHalf(text[i], 0xD800);
        const bool isPair = isHigh && i + 1 < text.size() && IsHalf(text[i + 1], 0xDC00);
        if (isPair) {
            ++i;
        } else if (isHigh || IsHalf(text[i], 0xDC00)) {
            text[i] = 0xFFFD;
        }
    }
    return text;
}

void CheckUtf8(const std::string& bytes) {
    std::u16string text = FromUtf8(bytes);
    Require(WellFormed(text) == text, "no half of a pair is read");
    Require(FromUtf8(ToUtf8(text)) == text, "what was read is written and read again");
    const bool isWhole = text.find(u'\xFFFD') == text.npos;
    Require(!isWhole || ToUtf8(text) == bytes, "one text has one form in bytes");
    const std::size_t length = text.size();
    std::erase(text, u'\xFFFD');
    const bool isSent = bytes.find("\xEF\xBF\xBD") != bytes.npos;
    Require(isSent || ToUtf8(text).size() + length - text.size() == bytes.size(),
            "each byte of what is malformed is replaced");
}

void CheckEncodings(const std::string& bytes, const std::u16string& text) {
    CheckCodePage(bytes);
    CheckUtf8(bytes);
    constexpr std::string_view kEdges = "A\x80\x8F\x90\x9F\xA0\xBF\xC1\xC2\xE0\xED\xF0\xF4\xF5";
    std::string edges = bytes;
    for (char& byte : edges) byte = kEdges[static_cast<unsigned char>(byte) % kEdges.size()];
    CheckUtf8(edges);
    Require(FromUtf8(ToUtf8(text)) == WellFormed(text), "every text comes back");
    for (const char16_t unit : text) {
        const char16_t kept = CharacterOf(CodeOf(unit));
        Require(kept == unit || kept == u'?', "what the code page lacks is a question mark");
    }
}

constexpr std::u16string_view kCapitals =
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZŠŒŽŸÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ";
constexpr std::u16string_view kSmall =
    u"abcdefghijklmnopqrstuvwxyzšœžÿàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ";
static_assert(kCapitals.size() == kSmall.size());

/// The text with each letter of one alphabet replaced by that of another.
std::u16string Mapped(std::u16string text, std::u16string_view from, std::u16string_view to) {
    for (char16_t& character : text) {
        if (const std::size_t at = from.find(character); at != from.npos) character = to[at];
    }
    return text;
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

void CheckFolding(const std::u16string& text, const std::u16string& other) {
    const std::u16string raised = Mapped(text, kSmall, kCapitals);
    Require(Folded(text) == Mapped(text, kCapitals, kSmall), "letters fold as in the alphabet");
    Require(EqualFolded(text, raised) && HashFolded(text) == HashFolded(raised), "case is ignored");
    const std::u16string same = text.substr(0, other.size());
    const bool equal = Mapped(same, kCapitals, kSmall) == Mapped(other, kCapitals, kSmall);
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
    for (const bool isKept : {true, false}) {
        std::u16string own = text;
        RemoveUnwantedChars(own, own, u"", isKept);
        Require(own == (isKept ? text : wanted), "what is filtered may be its own output");
    }
    Require(RemoveUnprintableChars(text) == visible, "unprintable ones are shown");
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    FakeServices session;
    session.debug = true;
    Services::Install(&session);
    const auto one = static_cast<char16_t>(input.ConsumeIntegral<std::uint8_t>());
    const auto other = static_cast<char16_t>(input.ConsumeIntegral<std::uint8_t>());
    const auto skipped = input.ConsumeIntegralInRange<std::size_t>(0, 40);
    const bool isWide = input.ConsumeBool();
    const std::u16string sought = FuzzText(input, 12);
    const std::string bytes = input.ConsumeRemainingBytesAsString();
    std::u16string text = FromCodePage(bytes);
    if (isWide) {  // characters of both bytes
        for (std::size_t i = 0; i + 1 < text.size(); i += 2)
            text[i] |= static_cast<char16_t>(text[i + 1] << 8);
    }
    CheckEncodings(bytes, text);
    CheckMasks(text, one);
    CheckScan(text, one, other, skipped);
    CheckFolding(text, sought);
    CheckFilters(text);
}
