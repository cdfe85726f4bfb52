// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/help/HelpStyle.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace halvek {

enum class HelpStyle::Kind {
    Words,   ///< names, and numbers where a property takes one
    Length,  ///< of a border or a space
    Size,    ///< of a table or a picture
    Font,    ///< of letters
    Line,    ///< of a line
    Colour,
};

struct HelpStyle::Property {
    std::u16string_view start;  ///< the name, or what comes before its first "-"
    Kind kind;
    bool hasParts;  ///< as "margin-left" of "margin"
};

namespace {

constexpr std::size_t kNone = std::u16string_view::npos;
constexpr std::size_t kMaxRules = 1000;
constexpr std::size_t kMaxSelectors = 500;
constexpr std::size_t kMaxValue = 300;
constexpr char16_t kBlanks[] = u" \t\r\n\f";

std::u16string_view Trimmed(std::u16string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

bool IsDigit(char16_t character) {
    return character >= u'0' && character <= u'9';
}

bool IsLetter(char16_t character) {
    const char16_t folded = character | 0x20;
    return folded >= u'a' && folded <= u'z';
}

bool IsNameCharacter(char16_t character) {
    return IsDigit(character) || IsLetter(character) || character == u'-' || character == u'_' ||
           character >= 0x80;
}

std::size_t EndOfName(std::u16string_view text) {
    const auto* const end = std::ranges::find_if_not(text, IsNameCharacter);
    return static_cast<std::size_t>(end - text.begin());
}

/// The text without comments; one without an end takes the rest with it.
std::u16string WithoutComments(std::u16string_view text) {
    std::u16string result;
    while (!text.empty()) {
        const std::size_t start = text.find(u"/*");
        result += text.substr(0, start);
        const std::size_t end = start == kNone ? kNone : text.find(u"*/", start + 2);
        if (end == kNone) break;
        text.remove_prefix(end + 2);
    }
    // As pages hide their sheets from the oldest browsers
    for (const std::u16string_view mark : {u"<!--", u"-->"}) {
        for (std::size_t at = 0; (at = result.find(mark, at)) != kNone;) {
            result.replace(at, mark.size(), mark.size(), u' ');
        }
    }
    return result;
}

/// True for "@media screen", whose rules count as if they stood alone.
bool IsForScreen(std::u16string_view selectors) {
    return StartsFolded(selectors, u"@media") &&
           (selectors.find(u"screen") != kNone || selectors.find(u"all") != kNone);
}

/// Behind the "}" that belongs to the "{" at the beginning.
std::size_t EndOfBraces(std::u16string_view text) {
    int depth = 0;
    for (std::size_t at = 0; at != kNone; at = text.find_first_of(u"{}", at + 1)) {
        depth += text[at] == u'{' ? 1 : -1;
        if (depth == 0) return at + 1;
    }
    return text.size();
}

/// The text without what could end its declaration, its sheet or its element.
std::u16string WithoutMarkup(std::u16string_view text) {
    std::u16string result;
    for (const char16_t character : text) {
        const bool isMarkup = std::u16string_view(u"<>{};\\\"'").find(character) != kNone;
        if (!isMarkup && character >= u' ') result += character;
    }
    return result;
}

/// What stands between the brackets of "rgb(...)": numbers and nothing else.
std::u16string Components(std::u16string_view text) {
    std::u16string result;
    for (const char16_t character : text) {
        if (std::u16string_view(u"0123456789.,% ").find(character) != kNone) result += character;
    }
    return result;
}

struct Range {
    int least;
    int most;
};

}  // namespace

/// A number with its unit, at most as large as the text layout bears; empty for anything else.
std::u16string HelpStyle::Number(std::u16string_view& rest, const Property& property) {
    bool isNegative = false;
    if (rest.starts_with(u'-') || rest.starts_with(u'+')) {
        isNegative = rest[0] == u'-';
        rest.remove_prefix(1);
    }
    int whole = 0;
    while (!rest.empty() && IsDigit(rest[0])) {
        whole = std::min(whole * 10 + (rest[0] - u'0'), 100'000);
        rest.remove_prefix(1);
    }
    std::u16string fraction;
    if (rest.starts_with(u'.')) {
        rest.remove_prefix(1);
        while (!rest.empty() && IsDigit(rest[0])) {
            if (fraction.size() < 3) fraction += rest[0];
            rest.remove_prefix(1);
        }
    }
    const bool isPercent = rest.starts_with(u'%');
    // Letters only: a "1e9px" would be an exponent to the text layout.
    const auto* const endOfUnit = std::ranges::find_if_not(rest, IsLetter);
    const auto unitLength = static_cast<std::size_t>(endOfUnit - rest.begin());
    const std::u16string unit(rest.substr(0, isPercent ? 1 : unitLength));
    rest.remove_prefix(unit.size());
    const bool isRelative = EqualFolded(unit, u"em") || EqualFolded(unit, u"ex");
    Range range{0, 50};
    if (property.kind == Kind::Words) range = {0, 1000};
    if (property.kind == Kind::Size) range = {0, 4000};
    if (property.kind == Kind::Font) range = {4, 48};
    if (property.kind == Kind::Colour) range = {0, 360};
    if (property.start == u"text-indent") range.least = -200;
    if (isRelative) range = {range.least < 0 ? -10 : 0, 4};
    if (isPercent) range = {0, property.kind == Kind::Size ? 100 : 300};
    if (property.kind == Kind::Line) {
        range = isPercent                    ? Range{50, 250}
                : unit.empty() || isRelative ? Range{1, 3}
                                             : Range{6, 100};
    }
    const int value = std::clamp(isNegative ? -whole : whole, range.least, range.most);
    std::u16string result = value < 0 ? u"-" : u"";
    for (const char digit : std::to_string(std::abs(value))) result += static_cast<char16_t>(digit);
    if (!fraction.empty() && std::abs(value) == whole && value != range.most) {
        (result += u'.') += fraction;
    }
    return result + unit;
}

/// After "url(", up to its ")".
std::u16string HelpStyle::Url(std::u16string_view written) {
    std::u16string_view address = Trimmed(written);
    if (address.starts_with(u'"') || address.starts_with(u'\'')) {
        address = address.substr(1, address.find(address[0], 1) - 1);
    }
    const std::u16string served = picture_(address);
    return served.empty() ? u"" : u"url(" + served + u")";
}

/// Copies numbers, names, quoted texts and colours, one after the other; anything else is left out.
std::u16string HelpStyle::Value(std::u16string_view written, const Property& property) {
    std::u16string value;
    for (std::u16string_view rest = written.substr(0, kMaxValue); !rest.empty();) {
        const char16_t first = rest[0];
        // Two numbers must not become a larger one where what stood between them is left out.
        const bool isApart = value.empty() || value.back() == u' ' || value.back() == u',';
        if (!isApart && first != u',') value += u' ';
        if (first == u'"' || first == u'\'') {
            const std::size_t end = rest.find(first, 1);
            if (end == kNone) break;
            (value += first) += WithoutMarkup(rest.substr(1, end - 1));
            value += first;
            rest.remove_prefix(end + 1);
        } else if (first == u'#') {
            const std::size_t end = 1 + EndOfName(rest.substr(1));
            value += rest.substr(0, end);
            rest.remove_prefix(end);
        } else if (IsDigit(first) || first == u'.' || first == u'+' ||
                   (first == u'-' && rest.size() > 1 && (IsDigit(rest[1]) || rest[1] == u'.'))) {
            value += Number(rest, property);
        } else if (IsNameCharacter(first)) {
            const std::size_t end = EndOfName(rest);
            const std::u16string_view name = rest.substr(0, end);
            rest.remove_prefix(end);
            const bool isFunction = rest.starts_with(u'(');
            const std::size_t close = rest.find(u')');
            if (isFunction && close == kNone) break;
            if (!isFunction) {
                value += name;
            } else if (EqualFolded(name, u"url")) {
                value += Url(rest.substr(1, close - 1));
            } else if (EqualFolded(name, u"rgb") || EqualFolded(name, u"rgba")) {
                (((value += name) += u'(') += Components(rest.substr(1, close - 1))) += u')';
            }
            if (isFunction) rest.remove_prefix(close + 1);
        } else {
            if (first == u',') value += first;
            rest.remove_prefix(1);
        }
    }
    return value;
}

std::u16string HelpStyle::Declarations(std::u16string_view written) {
    static constexpr Property kProperties[] = {
        {u"background", Kind::Colour, true}, {u"border", Kind::Length, true},
        {u"color", Kind::Colour, false},     {u"font-family", Kind::Words, false},
        {u"font-size", Kind::Font, false},   {u"font", Kind::Font, true},
        {u"height", Kind::Size, false},      {u"line-height", Kind::Line, false},
        {u"list-style", Kind::Words, true},  {u"margin", Kind::Length, true},
        {u"padding", Kind::Length, true},    {u"text-indent", Kind::Length, false},
        {u"text", Kind::Words, true},        {u"vertical-align", Kind::Words, false},
        {u"width", Kind::Size, false},
    };
    constexpr int kMaxDeclarations = 50;
    std::u16string kept;
    int count = 0;
    for (const TextIn piece : Pieces(written, u';')) {
        const std::size_t colon = piece.find(u':');
        if (colon == kNone || ++count > kMaxDeclarations) continue;
        const std::u16string_view name = Trimmed(piece.substr(0, colon));
        const auto* const property = std::ranges::find_if(kProperties, [name](const Property& it) {
            const bool isPart = it.hasParts && name.size() > it.start.size() &&
                                name[it.start.size()] == u'-' && EndOfName(name) == name.size();
            return StartsFolded(name, it.start) && (name.size() == it.start.size() || isPart);
        });
        if (property == std::end(kProperties)) continue;
        const std::u16string value = Value(Trimmed(piece.substr(colon + 1)), *property);
        if (Trimmed(value).empty()) continue;
        if (property->kind == Kind::Colour) hasColours_ = true;
        ((kept += name) += u':') += value;
        kept += u';';
    }
    return kept;
}

std::u16string HelpStyle::Rule(std::u16string_view selectors, std::u16string_view declarations) {
    std::u16string kept;
    for (const char16_t character : Trimmed(selectors.substr(0, kMaxSelectors))) {
        const bool isKnown = IsNameCharacter(character) || character == u'.' || character == u'#' ||
                             character == u',' || character == u':' || character == u'*';
        kept += isKnown ? character : u' ';
    }
    const std::u16string written = Declarations(declarations);
    if (kept.empty() || written.empty() || rules_ >= kMaxRules) return {};
    // Each selector is tried with each element.
    rules_ += 1 + static_cast<std::size_t>(std::ranges::count(kept, u','));
    return kept + u'{' + written + u"}\n";
}

std::u16string HelpStyle::Sheet(std::u16string_view written) {
    const std::u16string text = WithoutComments(written);
    std::u16string kept;
    std::u16string_view rest = text;
    while (rules_ < kMaxRules) {
        rest.remove_prefix(std::min(rest.find_first_not_of(u" \t\r\n\f};"), rest.size()));
        const std::size_t open = rest.find_first_of(u"{;");
        if (open == kNone) break;
        const std::u16string_view selectors = rest.substr(0, open);
        const bool isPlain = !selectors.starts_with(u'@');
        rest.remove_prefix(open);
        if (rest[0] == u';') continue;
        if (isPlain) {
            const std::size_t close = rest.find(u'}');
            kept += Rule(selectors, rest.substr(1, close - 1));
            rest.remove_prefix(std::min(close, rest.size()));
        } else if (IsForScreen(selectors)) {
            rest.remove_prefix(1);
        } else {
            rest.remove_prefix(EndOfBraces(rest));
        }
    }
    return kept;
}

}  // namespace halvek
