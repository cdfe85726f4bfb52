// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/help/HelpMarkup.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/help/HelpWords.h>
#include <halvekutils/help/HtmlTokens.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>

namespace halvek {

namespace {

struct Range {
    char16_t first;
    char16_t last;
};

// Characters that join the one before them, and the halves of pairs that hold such
constexpr Range kMarks[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x05BF, 0x05C7}, {0x0610, 0x061A},
    {0x064B, 0x065F}, {0x0670, 0x0670}, {0x06D6, 0x06ED}, {0x0711, 0x0711}, {0x0730, 0x074A},
    {0x07A6, 0x07B0}, {0x07EB, 0x07F3}, {0x0816, 0x082D}, {0x0859, 0x085B}, {0x0898, 0x0903},
    {0x0E31, 0x0E3A}, {0x0E47, 0x0E4E}, {0x0EB1, 0x0EBC}, {0x0EC8, 0x0ECE}, {0x0F18, 0x0F19},
    {0x0F35, 0x0F3F}, {0x0F71, 0x0FBC}, {0x102B, 0x103E}, {0x1056, 0x109D}, {0x135D, 0x135F},
    {0x1712, 0x1715}, {0x1732, 0x1734}, {0x17B4, 0x17DD}, {0x180B, 0x180F}, {0x18A9, 0x18A9},
    {0x1920, 0x193B}, {0x1A17, 0x1A1B}, {0x1A55, 0x1A7F}, {0x1AB0, 0x1B04}, {0x1B34, 0x1B44},
    {0x1B6B, 0x1B73}, {0x1B80, 0x1B82}, {0x1BA1, 0x1BAD}, {0x1BE6, 0x1BF3}, {0x1C24, 0x1C37},
    {0x1CD0, 0x1CF9}, {0x1DC0, 0x1DFF}, {0x200B, 0x200F}, {0x202A, 0x202E}, {0x2060, 0x206F},
    {0x20D0, 0x20FF}, {0x2CEF, 0x2CF1}, {0x2DE0, 0x2DFF}, {0x302A, 0x302F}, {0x3099, 0x309A},
    {0xA66F, 0xA67D}, {0xA69E, 0xA69F}, {0xA6F0, 0xA6F1}, {0xA802, 0xA82C}, {0xA880, 0xA8C5},
    {0xA8E0, 0xA8F1}, {0xA926, 0xA953}, {0xA980, 0xA9C0}, {0xAA29, 0xAA4D}, {0xAAB0, 0xAAEF},
    {0xABE3, 0xABED}, {0xD834, 0xD834}, {0xDB40, 0xDB40}, {0xFB1E, 0xFB1E}, {0xFE00, 0xFE0F},
    {0xFE20, 0xFE2F},
};

bool IsMark(char16_t character) {
    if (character < 0x0300) return false;
    if (character >= 0x0900 && character <= 0x0DFF) {
        // The scripts of India all have their signs at the same places.
        const int place = character & 0x7F;
        return place <= 0x03 || (place >= 0x3A && place <= 0x57) || place == 0x62 || place == 0x63;
    }
    const auto* const range = std::ranges::lower_bound(kMarks, character, {}, &Range::last);
    return range != std::end(kMarks) && character >= range->first;
}

/// A reference at the beginning of a text, and how long it is.
struct Reference {
    std::uint32_t character = 0;  ///< 0 for a named one
    std::size_t length = 0;       ///< 0 for none
};

Reference ReferenceAt(std::u16string_view text) {
    constexpr std::size_t kMaxLength = 12;
    const std::size_t end = text.substr(0, kMaxLength).find(u';');
    if (end == std::u16string_view::npos || end < 2) return {};
    std::u16string_view name = text.substr(1, end - 1);
    const bool isNumber = name[0] == u'#';
    if (isNumber) name.remove_prefix(1);
    const bool isHex = isNumber && !name.empty() && (name[0] | 0x20) == u'x';
    if (isHex) name.remove_prefix(1);
    std::uint32_t value = 0;
    for (const char16_t character : name) {
        const char16_t folded = FoldCase(character);
        const bool isDigit = folded >= u'0' && folded <= u'9';
        const bool isLetter = folded >= u'a' && folded <= (isHex ? u'f' : u'z');
        if (!isDigit && (!isLetter || (isNumber && !isHex))) return {};
        const auto digit = static_cast<std::uint32_t>(isDigit ? folded - u'0' : folded - u'a' + 10);
        value = std::min<std::uint32_t>(value * (isHex ? 16 : 10) + digit, 0x110000);
    }
    if (name.empty()) return {};
    if (!isNumber) return {0, end + 1};
    const bool isCharacter = value > 0 && value < 0x110000 && (value < 0xD800 || value > 0xDFFF);
    return {isCharacter ? value : 0xFFFD, end + 1};
}

/// Appends characters one at a time.
class Writer {
  public:
    Writer(std::u16string& html, int& marks) : html_(html), marks_(marks) {}

    void Add(char16_t character) {
        constexpr int kMaxMarks = 16;
        if (character == u'<') {
            html_ += u"&lt;";
        } else if (character == u'>') {
            html_ += u"&gt;";
        } else if (character == u'&') {
            html_ += u"&amp;";
        } else if (IsMark(character)) {
            // The second half of a pair goes with the first.
            isLeftOut_ = ++marks_ > kMaxMarks;
            if (!isLeftOut_) html_ += character;
            return;
        } else if (character >= 0xDC00 && character <= 0xDFFF) {
            if (!isLeftOut_) html_ += character;
        } else if (character >= u' ' || character == u'\t' || character == u'\n') {
            html_ += IsOfTheLayout(character) ? u' ' : character;
        }
        const bool isSecond = character >= 0xDC00 && character <= 0xDFFF;
        if (!isSecond) marks_ = 0;
        isLeftOut_ = false;
    }

  private:
    /// The text layout marks frames, objects and paragraphs by these.
    static bool IsOfTheLayout(char16_t character) {
        return (character >= 0xFDD0 && character <= 0xFDEF) || character == 0xFFFC ||
               character >= 0xFFFE || character == 0x2028 || character == 0x2029;
    }

    std::u16string& html_;
    int& marks_;
    bool isLeftOut_ = false;
};

bool IsPlain(char16_t character) {
    return character >= u' ' && character < 0x0300 && character != u'&' && character != u'<' &&
           character != u'>';
}

bool StartsLine(std::u16string_view name) {
    static constexpr std::u16string_view kInLine[] = {
        u"a",      u"abbr", u"acronym", u"b",    u"big", u"cite", u"code",  u"dfn",  u"em",
        u"font",   u"i",    u"kbd",     u"nobr", u"s",   u"samp", u"small", u"span", u"strike",
        u"strong", u"sub",  u"sup",     u"tt",   u"u",   u"var",  u"wbr",
    };
    return std::ranges::none_of(kInLine, [name](auto it) { return EqualFolded(it, name); });
}

}  // namespace

void AppendHelpText(std::u16string& html, std::u16string_view text, int& marks) {
    Writer writer(html, marks);
    for (std::size_t at = 0; at < text.size();) {
        const auto* const end = std::find_if_not(text.begin() + at, text.end(), IsPlain);
        const auto length = static_cast<std::size_t>(end - text.begin()) - at;
        if (length > 0) marks = 0;
        html += text.substr(at, length);
        at += length;
        if (at == text.size()) break;
        if (text[at] != u'&') {
            const char16_t character = text[at++];
            const bool isFirst = character >= 0xD800 && character <= 0xDBFF;
            const bool isPair =
                isFirst && at < text.size() && text[at] >= 0xDC00 && text[at] <= 0xDFFF;
            const bool isLone = (character >= 0xD800 && character <= 0xDFFF) && !isPair;
            writer.Add(isLone ? char16_t{0xFFFD} : character);
            if (isPair) writer.Add(text[at++]);
            continue;
        }
        const auto [character, referenceLength] = ReferenceAt(text.substr(at));
        if (referenceLength == 0) {
            writer.Add(u'&');
            ++at;
            continue;
        }
        if (character == 0) {
            html += text.substr(at, referenceLength);
            marks = 0;
        } else if (character < 0x10000) {
            writer.Add(static_cast<char16_t>(character));
        } else {
            writer.Add(static_cast<char16_t>(0xD7C0 + (character >> 10)));
            writer.Add(static_cast<char16_t>(0xDC00 | (character & 0x3FF)));
        }
        at += referenceLength;
    }
}

std::u16string HelpWordsOf(std::u16string_view html) {
    std::u16string words;
    words.reserve(html.size() / 2);
    bool isBlank = true;
    const auto startLine = [&] {
        if (isBlank && !words.empty() && words.back() == u' ') words.pop_back();
        if (!words.empty() && words.back() != u'\n') words += u'\n';
        isBlank = true;
    };
    const auto add = [&](std::u16string_view text) {
        for (std::size_t at = 0; at < text.size();) {
            std::size_t end = at;
            while (end < text.size() && text[end] > u' ' && text[end] != 0xA0) ++end;
            words += text.substr(at, end - at);
            if (end > at) isBlank = false;
            while (end < text.size() && (text[end] <= u' ' || text[end] == 0xA0)) ++end;
            if (end > at && end < text.size() + 1 && !isBlank &&
                (text[end - 1] <= u' ' || text[end - 1] == 0xA0)) {
                words += u' ';
                isBlank = true;
            }
            at = end;
        }
    };
    for (HtmlTokens tokens(html); tokens.Next();) {
        if (tokens.IsText()) {
            const std::u16string_view text = tokens.Text();
            if (text.find(u'&') == std::u16string_view::npos) {
                add(text);
            } else {
                add(WithoutReferences(text));
            }
            continue;
        }
        for (const char16_t* const raw : {u"script", u"style", u"title"}) {
            if (tokens.IsStart(raw)) tokens.TakeRaw();
        }
        if (StartsLine(tokens.Name())) startLine();
    }
    return words;
}

}  // namespace halvek
