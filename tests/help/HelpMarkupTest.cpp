// SPDX-License-Identifier: MIT
#include <halvekutils/base/Utf8.h>
#include <halvekutils/help/HelpMarkup.h>

#include <gtest/gtest.h>

namespace halvek {
namespace {

/// A file that holds pic.png and style.css.
struct File : HelpSurroundings {
    std::u16string Link(std::u16string_view written) override {
        return u"at:" + std::u16string(written);
    }
    std::optional<Picture> PictureAt(std::u16string_view written) override {
        if (written != u"pic.png") return std::nullopt;
        return Picture{u"at:pic.png", 200, 100};
    }
    std::u16string StyleAt(std::u16string_view written) override {
        return written == u"style.css" ? u"p { color: red; font-family: '</style><img>' }" : u"";
    }
};

HelpMarkup Cleaned(std::string_view html) {
    File file;
    return CleanedHelpPage(FromUtf8(html), file);
}

TEST(HelpMarkup, KeepsWhatTheLayoutKnowsAndNoMore) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"<P CLASS=x onclick='f()'>a <b>b</b></P>", "<p class=\"x\">a <b>b</b></p>"},
        {"<script>alert('<p>')</script>a<!-- <b> -->b<?php x ?>c", "abc"},
        {"<script>open", "open"},
        {"<html><head><title>T</title></head><body>a<body>b</body></html>",
         "<title>T</title><body>ab"},
        {"a < b && c &amp; &#8364; &#60;b&#62;",
         "a &lt; b &amp;&amp; c &amp; \xE2\x82\xAC &lt;b&gt;"},
        {"<a href='x y.htm'>l</a><a name=n>m<a name=o>n",
         "<a href=\"at:x y.htm\">l</a><a name=\"n\">m</a><a name=\"o\">n"},
        {"<img src=pic.png><img src=pic.png width=50><img src=pic.png height=999999>",
         "<img src=\"at:pic.png?200x100\" width=\"200\" height=\"100\">"
         "<img src=\"at:pic.png?50x25\" width=\"50\" height=\"25\">"
         "<img src=\"at:pic.png?4000x4000\" width=\"4000\" height=\"4000\">"},
        {"<img src=none.png alt='A &lt; B'><img src=file:///x.png>", "[A &lt; B]"},
        {"<table border cellpadding=999999 width=90%><tr><td colspan=99999 rowspan=0>x</table>",
         "<table border=\"1\" cellpadding=\"50\" width=\"90%\"><tr><td colspan=\"50\" "
         "rowspan=\"0\">x</td></tr></table>"},
        {"<table>a</tr><td><b>b<table><td>c</tr></table><tr></b>d</table>e",
         "<table><tr><td>a</td></tr><tr><td><b>b<table><tr><td>c</td></tr></table></b></td></tr>"
         "<tr><td>d</td></tr></table>e"},
        {"<td>x</td></table></b>", " x"},
        {"<frameset><frame src=a.htm name=Left><noframes>none</noframes></frameset>",
         "<p><a href=\"at:a.htm\">Left</a></p>"},
        {"<map><area href=a.htm alt=Part></map>", " <a href=\"at:a.htm\">Part</a>"},
        {"<noframes>none</noframes>", "none"},
        {"<link rel=stylesheet href=style.css><link rel=stylesheet href=none.css>",
         "<style>p{color:red;font-family:'/styleimg';}\n</style>"},
        {"<style>@import url(x); @media print{p{color:red}} @media screen{b{color:blue}} "
         "i,u.x{margin:99999px;behavior:url(x)}</style>",
         "<style>b{color:blue;}\ni,u.x{margin:50px;}\n</style>"},
        {"<p "
         "style='text-indent:-18pt;margin:-5px;line-height:0;width:1e9px;float:left;padding:40!"
         "40px'>x",
         "<p style=\"text-indent:-18pt;margin:0px;line-height:1;width:1e 9px;padding:40 40px;\">x"},
        {"<body background=none.png><p style='background:url(none.png)'>x", "<body><p>x"},
        {"<title>A\n <b></title>", "<title>A &lt;b&gt;</title>"},
        {"\x01\xEF\xB7\x90\xEF\xBF\xBC&#64977;&#55296;", "   \xEF\xBF\xBD"},
    };
    for (const auto& [written, kept] : rows) {
        EXPECT_EQ(ToUtf8(Cleaned(written).html), kept) << written;
    }
}

TEST(HelpMarkup, TellsColoursOfItsOwn) {
    for (const char* const page :
         {"<body bgcolor=white>", "<p style='color:red'>", "<font color=red>",
          "<style>p{background:#fff}</style>", "<body background=pic.png>"}) {
        EXPECT_TRUE(Cleaned(page).hasColours) << page;
    }
    EXPECT_FALSE(Cleaned("<p style='font-size:9pt' class=x><img src=pic.png>").hasColours);
}

std::string Repeated(std::string_view text, int times) {
    std::string all;
    for (; times > 0; --times) all += text;
    return all;
}

TEST(HelpMarkup, BoundsWhatAPageCosts) {
    const auto marks =
        Cleaned("a" + Repeated("&#769;", 500) + Repeated("\xCC\x81", 500) + "b").html;
    EXPECT_EQ(marks.size(), 18u);
    const auto nested = ToUtf8(Cleaned(Repeated("<table><tr><td>", 50) + "x").html);
    EXPECT_EQ(nested, Repeated("<table><tr><td>", 5) + Repeated("  ", 45) + "x");
    const auto deep = ToUtf8(Cleaned(Repeated("<b>", 500) + "x" + Repeated("</b>", 500)).html);
    EXPECT_EQ(deep, Repeated("<b>", 60) + "x" + Repeated("</b>", 60));
    EXPECT_TRUE(Cleaned(Repeated("<p>x", 200'000)).isPlain);
    EXPECT_TRUE(Cleaned("<table>" + Repeated("<tr><td rowspan=200 colspan=50>x", 2000)).isPlain);
    const HelpMarkup plain = Cleaned(Repeated("<p>x <b>&amp;</b></p>", 70'000));
    EXPECT_TRUE(plain.html.starts_with(u"<pre>x &amp;\nx &amp;\n"));
}

TEST(HelpMarkup, CutsPagesAtFiveMillionCharacters) {
    const std::string paragraph = "<p>" + std::string(996, 'x') + "\n";
    EXPECT_FALSE(Cleaned(Repeated(paragraph, 4900)).isCut);
    const HelpMarkup cut = Cleaned(Repeated(paragraph, 5100));
    EXPECT_TRUE(cut.isCut);
    EXPECT_GT(cut.html.size(), 5'000'000u);
    // A paragraph of that length would be laid out for minutes.
    const std::u16string single = Cleaned(std::string(20'000, 'x')).html;
    EXPECT_EQ(single.find(u"<p style=\"margin:0\">"), 1000u);
}

}  // namespace
}  // namespace halvek
