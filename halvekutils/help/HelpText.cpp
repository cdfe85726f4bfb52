// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/help/HelpText.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace halvek {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::size_t kFirstLines = 4096;
constexpr char16_t kReplacement = 0xFFFD;

struct Reference {
    std::u16string_view name;
    char16_t character;
};

constexpr Reference kReferences[] = {
    {u"amp", u'&'},  {u"lt", u'<'},    {u"gt", u'>'},
    {u"quot", u'"'}, {u"apos", u'\''}, {u"nbsp", u' '},
};

/// True when the bytes name UTF-8 as their character set.
bool SaysUtf8(std::string_view bytes) {
    std::string start(bytes.substr(0, kFirstLines));
    for (char& byte : start) byte = static_cast<char>(FoldCase(static_cast<unsigned char>(byte)));
    for (const std::string_view word : {"charset", "encoding"}) {
        const std::size_t at = start.find(word);
        if (at == std::string::npos) continue;
        const std::size_t name = start.find_first_not_of(" =\"'", at + word.size());
        if (name == std::string::npos) continue;
        if (start.compare(name, 5, "utf-8") == 0 || start.compare(name, 4, "utf8") == 0)
            return true;
    }
    return false;
}

/// The character of a reference, as in "amp" or "#x20AC"; U+FFFD for an unknown one.
char16_t CharacterNamed(std::u16string_view name) {
    if (!name.starts_with(u'#')) {
        const auto* const found = std::ranges::find(kReferences, name, &Reference::name);
        return found == std::end(kReferences) ? kReplacement : found->character;
    }
    name.remove_prefix(1);
    const bool isHex = name.starts_with(u'x') || name.starts_with(u'X');
    if (isHex) name.remove_prefix(1);
    const std::uint32_t base = isHex ? 16 : 10;
    std::uint32_t value = 0;
    for (const char16_t digit : name) {
        const std::uint32_t folded = FoldCase(digit);
        const std::uint32_t number = folded >= u'a' ? folded - u'a' + 10 : folded - u'0';
        if (number >= base || value > 0xFFFF) return kReplacement;
        value = value * base + number;
    }
    // Characters beyond the 16-bit plane are rare in the titles of topics.
    const bool isCharacter = value >= u' ' && value < 0xFFFE && (value < 0xD800 || value > 0xDFFF);
    return isCharacter ? static_cast<char16_t>(value) : kReplacement;
}

}  // namespace

std::u16string HelpTextOf(std::string_view bytes) {
    if (bytes.starts_with(kUtf8Mark)) return FromUtf8(bytes.substr(kUtf8Mark.size()));
    return SaysUtf8(bytes) ? FromUtf8(bytes) : FromCodePage(bytes);
}

std::u16string HelpNameOf(std::string_view bytes) {
    std::u16string name = FromUtf8(bytes);
    return name.find(kReplacement) == std::u16string::npos ? name : FromCodePage(bytes);
}

std::u16string WithoutReferences(TextIn html) {
    constexpr std::size_t kMaxNameLength = 8;
    std::u16string text;
    std::size_t at = 0;
    while (at < html.size()) {
        const std::size_t start = std::min(html.find(u'&', at), html.size());
        text += html.substr(at, start - at);
        at = start;
        if (at == html.size()) break;
        const std::size_t end = html.substr(at, kMaxNameLength + 2).find(u';');
        const char16_t character = end == std::u16string_view::npos
                                       ? kReplacement
                                       : CharacterNamed(html.substr(at + 1, end - 1));
        const bool isKnown = character != kReplacement;
        text += isKnown ? character : u'&';
        at += isKnown ? end + 1 : 1;
    }
    return text;
}

}  // namespace halvek
