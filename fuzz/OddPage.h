// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace halvek {

/// A page of odd HTML: each byte stands for a piece of it, so that few bytes nest, span and repeat.
inline std::string OddPage(const std::uint8_t* data, std::size_t size) {
    static constexpr std::string_view kPieces[] = {
        "<table border=1 width=100%>",
        "<table>",
        "<table cellpadding=900 cellspacing=77>",
        "</table>",
        "<tr>",
        "</tr>",
        "<td>",
        "<td rowspan=99999>",
        "<td colspan=1000>",
        "<td width=1%>",
        "<td rowspan=7 colspan=3>",
        "<th width=900000>",
        "</td>",
        "<caption>",
        "<thead>",
        "<tbody>",
        "<ul>",
        "<ol start=-5>",
        "<li>",
        "</ul>",
        "</ol>",
        "<dl><dt>",
        "<dd>",
        "</dl>",
        "<div>",
        "<div style='float:left;width:50%'>",
        "<div style='float:right'>",
        "</div>",
        "<div style='margin:-9999px;padding:1e9em'>",
        "<p>",
        "<p align=right dir=rtl>",
        "</p>",
        "<p style='text-indent:-9999px'>",
        "<p style='line-height:0'>",
        "<p style='line-height:99999%'>",
        "<p style='page-break-before:always'>",
        "<p style='white-space:pre-wrap'>",
        "<pre>",
        "</pre>",
        "<img src=a.png width=99999 height=1>",
        "<img src=a.png align=left>",
        "<img src=a.png align=right width=3000>",
        "<img src=a.png height=9999999>",
        "<img src=none.png alt='a text'>",
        "<font size=+99>",
        "<font size=-99 color=red>",
        "</font>",
        "<b>",
        "</b>",
        "<i>",
        "</i>",
        "<sub>",
        "<sup>",
        "</sub>",
        "</sup>",
        "<span style='font-size:99999pt'>",
        "<span style='font-size:0'>",
        "</span>",
        "<a name=x>",
        "<a href='b c.htm#x'>",
        "</a>",
        "<hr width=1000%>",
        "<br>",
        "<center>",
        "</center>",
        "<nobr>",
        "<blockquote>",
        "</blockquote>",
        "<h1>",
        "</h1>",
        "<frameset><frame src=b.htm>",
        "<noframes>",
        "<style>p{margin:1px",
        "}td{padding:9999999px}</style>",
        "<style>*{float:left}</style>",
        "<title>",
        "</title>",
        "<!--",
        "-->",
        "<script>",
        "<body background=a.png bgcolor=red>",
        "<xmp>",
        "&#769;",
        "&#x301;",
        "&nbsp;",
        "&shy;",
        "&#8238;",
        "&#64976;",
        "&#65532;",
        "\xCC\x81\xCC\x81\xCC\x81\xCC\x81\xCC\x81\xCC\x81\xCC\x81\xCC\x81",
        "\xE0\xA4\xBF\xE0\xA5\x8D",
        "\xE2\x80\xAE",
        "\xD7\x90\xD7\x91",
        "\xF0\x9F\x98\x80",
        "word ",
        "word word word word word word word word ",
        "averyveryveryverylongwordwithoutanyblankinitatallaveryveryveryverylongword",
        " ",
        "\n",
        "<",
        "\"",
        "'>",
    };
    constexpr std::size_t kCount = sizeof kPieces / sizeof *kPieces;
    constexpr std::size_t kMaxLength = 2'000'000;
    std::string page = "<meta charset=utf-8>";
    for (std::size_t i = 0; i < size && page.size() < kMaxLength; ++i) {
        // A high byte repeats the piece that follows.
        std::size_t times = 1;
        if (data[i] >= 240 && i + 1 < size) times = std::size_t{1} << (data[i++] - 240);
        for (; times > 0 && page.size() < kMaxLength; --times) page += kPieces[data[i] % kCount];
    }
    return page;
}

}  // namespace halvek
