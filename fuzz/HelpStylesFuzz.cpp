// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/help/HelpStyle.h>

#include <algorithm>
#include <string>

using namespace halvek;

namespace {

constexpr char16_t kServed[] = u"help://file/a.png";
constexpr char16_t kShown[] = u"help://file/a.png)";

/// What matters to a reader of sheets, between bars.
constexpr std::u16string_view kPieces =
    u"{|}|;|:|,|(|)|/*|*/|<!--|-->|'|\"|\\|</style>|p.x, td:hover #y *|"
    u"@media screen and (color)|@media print|@import url(a.css)|@font-face|"
    u"margin|margin-left|background|background-image|color|font|font-size|line-height|width|"
    u"text-indent|position:fixed;|url(|a.png|file:///etc/passwd|expression(|rgb(|"
    u"-9e9px|+99999%|1e-7em|12pt|red";

/// Sheets of such pieces, and of any characters between.
std::u16string OddSheet(FuzzedDataProvider& input) {
    static const auto pieces = Cut(kPieces, u'|');
    std::u16string sheet;
    while (input.remaining_bytes() > 0) {
        const bool isPiece = input.ConsumeIntegralInRange(0, 7) != 0;
        sheet += isPiece ? Picked(input, pieces) : FuzzText(input, 8);
    }
    return sheet;
}

std::u16string Picture(std::u16string_view written) {
    return written == u"a.png" || written == kServed ? kServed : std::u16string();
}

/// The sheet without its quoted texts, which mean nothing.
std::u16string Unquoted(const std::u16string& sheet) {
    std::u16string rest;
    for (std::size_t at = 0; at < sheet.size(); ++at) {
        const bool isQuote = sheet[at] == u'"' || sheet[at] == u'\'';
        if (isQuote) at = sheet.find(sheet[at], at + 1);
        Require(at != sheet.npos, "a text in quotes ends");
        if (!isQuote) rest += sheet[at];
    }
    return rest;
}

/// Nothing that ends the sheet's element, fetches anything or computes.
void RequireHarmless(const std::u16string& sheet) {
    Require(sheet.find_first_of(u"<>\\") == sheet.npos, "a sheet stays in its element");
    const std::u16string rest = Unquoted(sheet);
    for (std::size_t at = 0; (at = rest.find(u'(', at)) != rest.npos; ++at) {
        const std::u16string before = Folded(rest.substr(0, at));
        const bool isPicture = before.ends_with(u"url") && rest.substr(at + 1).starts_with(kShown);
        Require(isPicture || before.ends_with(u"rgb") || before.ends_with(u"rgba"),
                "only colours and pictures of the file");
    }
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    const std::u16string written = OddSheet(input);
    HelpStyle style(Picture);
    const std::u16string kept = style.Sheet(written);
    RequireHarmless(kept);
    Require(std::ranges::count(kept, u'{') == std::ranges::count(kept, u'}'), "rules are closed");
    // Blanks take the place of what is left out, so the first copy may lose some more, and so may a
    // long value each time.
    const std::u16string copy = HelpStyle(Picture).Sheet(kept);
    constexpr std::size_t kLong = 250;
    Require(kept.size() > kLong || HelpStyle(Picture).Sheet(copy) == copy,
            "a harmless sheet stays as it is");
    const std::u16string declarations = style.Declarations(written);
    RequireHarmless(declarations);
    Require(declarations.find_first_of(u"{}") == declarations.npos, "declarations open no rule");
}
