// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/help/HelpText.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace halvek {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf16BigMark = "\xFE\xFF";
constexpr std::size_t kFirstLines = 4096;
constexpr char16_t kReplacement = 0xFFFD;

struct Reference {
    std::u16string_view name;
    char16_t character;
};

constexpr Reference kReferences[] = {
    {u"amp", u'&'},     {u"lt", u'<'},       {u"gt", u'>'},      {u"quot", u'"'},
    {u"apos", u'\''},   {u"nbsp", u' '},     {u"ndash", 0x2013}, {u"mdash", 0x2014},
    {u"lsquo", 0x2018}, {u"rsquo", 0x2019},  {u"ldquo", 0x201C}, {u"rdquo", 0x201D},
    {u"bull", 0x2022},  {u"hellip", 0x2026}, {u"trade", 0x2122}, {u"euro", 0x20AC},
};

/// The names of the characters from 160 to 255, in order.
constexpr std::u16string_view kLatin =
    u"nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg "
    u"macr deg plusmn sup2 sup3 acute micro para middot cedil sup1 ordm raquo frac14 "
    u"frac12 frac34 iquest Agrave Aacute Acirc Atilde Auml Aring AElig Ccedil Egrave "
    u"Eacute Ecirc Euml Igrave Iacute Icirc Iuml ETH Ntilde Ograve Oacute Ocirc Otilde "
    u"Ouml times Oslash Ugrave Uacute Ucirc Uuml Yacute THORN szlig agrave aacute "
    u"acirc atilde auml aring aelig ccedil egrave eacute ecirc euml igrave iacute "
    u"icirc iuml eth ntilde ograve oacute ocirc otilde ouml divide oslash ugrave "
    u"uacute ucirc uuml yacute thorn yuml";

/// The character of a name; U+FFFD for an unknown one.
char16_t CharacterOfName(std::u16string_view name) {
    const auto* const found = std::ranges::find(kReferences, name, &Reference::name);
    if (found != std::end(kReferences)) return found->character;
    char16_t character = 160;
    for (const TextIn latin : Pieces(kLatin, u' ')) {
        if (latin == name) return character;
        ++character;
    }
    return kReplacement;
}

/// The character set that the first lines name, in small letters; empty for none.
std::string CharsetNamedIn(std::string_view bytes) {
    std::string start(bytes.substr(0, kFirstLines));
    for (char& byte : start) byte = static_cast<char>(FoldCase(static_cast<unsigned char>(byte)));
    for (const std::string_view word : {"charset", "encoding"}) {
        const std::size_t at = start.find(word);
        if (at == std::string::npos) continue;
        const std::size_t name = start.find_first_not_of(" =\"'", at + word.size());
        if (name == std::string::npos) continue;
        const std::size_t end =
            start.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_-", name);
        if (end > name) return start.substr(name, end - name);
    }
    return {};
}

std::u16string FromUtf16(std::string_view bytes, bool isBig) {
    std::u16string text(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto first = static_cast<unsigned char>(bytes[2 * i]);
        const auto second = static_cast<unsigned char>(bytes[2 * i + 1]);
        text[i] = static_cast<char16_t>(isBig ? first << 8 | second : second << 8 | first);
    }
    return text;
}

/// The character of a reference, as in "amp" or "#x20AC"; U+FFFD for an unknown one.
char16_t CharacterNamed(std::u16string_view name) {
    if (!name.starts_with(u'#')) return CharacterOfName(name);
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
    if (value == 160) return u' ';
    // Pages write the characters of Windows-1252 by its codes.
    if (value >= 0x80 && value < 0xA0) return CharacterOf(static_cast<std::uint8_t>(value));
    // Characters beyond the 16-bit plane are rare in the titles of topics.
    const bool isCharacter = value >= u' ' && value < 0xFFFE && (value < 0xD800 || value > 0xDFFF);
    return isCharacter ? static_cast<char16_t>(value) : kReplacement;
}

struct Language {
    std::uint32_t number;
    std::string_view charset;
};

// By the whole number, or by its low ten bits, which leave the country out.
constexpr Language kLanguages[] = {
    {0x0404, "big5"},       {0x0C04, "big5"},
    {0x1404, "big5"},       {0x0C1A, "windows-1251"},
    {0x01, "windows-1256"}, {0x02, "windows-1251"},
    {0x04, "gbk"},          {0x05, "windows-1250"},
    {0x08, "windows-1253"}, {0x0D, "windows-1255"},
    {0x0E, "windows-1250"}, {0x11, "shift_jis"},
    {0x12, "windows-949"},  {0x15, "windows-1250"},
    {0x18, "windows-1250"}, {0x19, "windows-1251"},
    {0x1A, "windows-1250"}, {0x1B, "windows-1250"},
    {0x1C, "windows-1250"}, {0x1E, "windows-874"},
    {0x1F, "windows-1254"}, {0x20, "windows-1256"},
    {0x22, "windows-1251"}, {0x23, "windows-1251"},
    {0x24, "windows-1250"}, {0x25, "windows-1257"},
    {0x26, "windows-1257"}, {0x27, "windows-1257"},
    {0x29, "windows-1256"}, {0x2A, "windows-1258"},
    {0x2F, "windows-1251"},
};

}  // namespace

std::u16string HelpTextOf(std::string_view bytes, const HelpDecoder& decoder,
                          std::string_view charset) {
    if (bytes.starts_with(kUtf8Mark)) return FromUtf8(bytes.substr(kUtf8Mark.size()));
    for (const std::string_view mark : {kUtf16Mark, kUtf16BigMark}) {
        if (bytes.starts_with(mark)) return FromUtf16(bytes.substr(2), mark == kUtf16BigMark);
    }
    std::string name = CharsetNamedIn(bytes);
    if (name == "utf-8" || name == "utf8") return FromUtf8(bytes);
    if (name.empty() || name.starts_with("utf")) name = charset;
    const bool isWestern = name.empty() || name == "windows-1252" || name == "iso-8859-1";
    if (!isWestern && decoder) {
        if (auto text = decoder(name, bytes)) return *std::move(text);
    }
    return FromCodePage(bytes);
}

std::string_view HelpCharsetOf(std::uint32_t language) {
    constexpr std::uint32_t kWithoutCountry = 0x3FF;
    for (const std::uint32_t number : {language & 0xFFFF, language & kWithoutCountry}) {
        const auto* const found = std::ranges::find(kLanguages, number, &Language::number);
        if (found != std::end(kLanguages)) return found->charset;
    }
    return {};
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

std::u16string HelpTitleOf(TextIn text) {
    constexpr std::size_t kMaxTitle = 500;
    std::u16string title;
    for (const char16_t character : text) {
        const bool isBlank = character <= u' ' || (character >= 0x7F && character <= 0xA0);
        if (!isBlank) {
            title += character;
        } else if (!title.empty() && title.back() != u' ') {
            title += u' ';
        }
        if (title.size() >= kMaxTitle) break;
    }
    if (title.ends_with(u' ')) title.pop_back();
    return title;
}

}  // namespace halvek
