// SPDX-License-Identifier: MIT
#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace halvek {

/// A page of odd HTML from few bytes: tags with attributes that do not suit them, not closed or
/// closed twice, texts that are hard to lay out, and all of it repeated.
inline std::string OddPage(FuzzedDataProvider& input) {
    constexpr std::string_view kTags[] = {
        "table", "tr",  "td",  "th",   "caption",  "thead", "tbody",      "ul",   "ol",
        "li",    "dl",  "dt",  "dd",   "div",      "p",     "pre",        "b",    "i",
        "h1",    "sub", "sup", "span", "center",   "nobr",  "blockquote", "font", "a",
        "hr",    "br",  "img", "xmp",  "noframes", "body"};
    constexpr std::string_view kAttributes[] = {
        "",
        " border=1 width=100% cellpadding=900 cellspacing=77",
        " rowspan=99999",
        " rowspan=7 colspan=3",
        " colspan=1000 width=1%",
        " width=900000",
        " start=-5",
        " size=+99",
        " size=-99 color=red",
        " align=right dir=rtl",
        " style='float:left;width:50%'",
        " style='margin:-9999px;padding:1e9em;text-indent:-9999px'",
        " style='line-height:0;font-size:0'",
        " style='line-height:99999%;font-size:99999pt'",
        " style='page-break-before:always;white-space:pre-wrap'",
        " src=a.png width=99999 height=1",
        " src=a.png align=left height=9999999",
        " src=none.png alt='a text'",
        " name=x href='b c.htm#x'",
        " background=a.png bgcolor=red"};
    constexpr std::string_view kTexts[] = {
        "<frameset><frame src=b.htm>",
        "<style>p{margin:1px",
        "}td{padding:9999999px}</style>",
        "<title>a</title>",
        "<script>",
        "<!--",
        "-->",
        "&#769;&#x301;\xCC\x81\xCC\x81\xCC\x81\xCC\x81",
        "&nbsp;&shy;&#8238;&#64976;&#65532;",
        "\xE0\xA4\xBF\xE0\xA5\x8D\xE2\x80\xAE\xD7\x90\xD7\x91\xF0\x9F\x98\x80",
        "word word word word word word word word ",
        "averyveryveryverylongwordwithoutanyblankinitatallaveryveryveryverylongword",
        "\n",
        "<",
        "'>"};
    constexpr std::size_t kMaxLength = 2'000'000;
    std::string page = "<meta charset=utf-8>";
    while (input.remaining_bytes() > 0 && page.size() < kMaxLength) {
        // A byte says what kind of piece it is, and how often it is repeated.
        const auto kind = input.ConsumeIntegral<std::uint8_t>();
        std::string piece(kind % 6 == 0 ? input.PickValueInArray(kTexts)
                                        : input.PickValueInArray(kTags));
        if (kind % 6 == 1) piece = "</" + piece + '>';
        if (kind % 6 > 1) piece = '<' + piece.append(input.PickValueInArray(kAttributes)) + '>';
        int times = kind < 168 ? 1 : 1 << ((kind - 168) / 6);
        for (; times > 0 && page.size() < kMaxLength; --times) {
            page += piece;
        }
    }
    return page;
}

}  // namespace halvek
