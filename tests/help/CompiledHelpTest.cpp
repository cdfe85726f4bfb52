// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"
#include "tests/HelpFile.h"
#include "tests/help/MadeHelpFile.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/help/CompiledHelp.h>
#include <halvekutils/help/HelpSearch.h>

#include <gtest/gtest.h>

#include <tuple>

namespace halvek {
namespace {

TEST(CompiledHelp, KnowsItsTopicsAndContentsAndReadsThemInAnyLetterCase) {
    CompiledHelp help(HelpFile::Shared().Path());
    EXPECT_EQ(help.TopicOfContext(200)->path, u"/sub/bills.htm");
    const std::vector<HelpEntry> contents = {
        {0, u"First", {u"/first.htm", u""}, {}, {}},
        {1, u"Bills & fees", {u"/sub/bills.htm", u"late"}, {}, {}}};
    EXPECT_EQ(help.Contents(), contents);
    EXPECT_EQ(help.Read(u"/Sub/DOT.gif"), ReadFile(HelpFile::Source("sub/dot.gif")));
    const std::u16string bills = HelpTextOf(help.Read(u"/sub/bills.htm"));
    EXPECT_NE(bills.find(u"gr\u00FC\u00DFe"), std::string::npos);
    EXPECT_TRUE(bills.ends_with(u"<p>line 31668081</p><a name=late>Late</a>"));
}

TEST(CompiledHelp, AFileThatIsCutOffOrDamagedIsAFaultAtMost) {
    const std::string whole = ReadFile(HelpFile::Shared().Path());
    // The headers and the directory closely, the compressed data here and there
    for (std::size_t at = 0; at < whole.size(); at += at < 0x1000 ? 37 : 1499) {
        const auto cut = HelpFile::Shared().Beside(whole.substr(0, at));
        EXPECT_EQ(FaultOf([&] { CompiledHelp help(cut); }), 57) << at;
        const auto damaged = HelpFile::Shared().Beside(std::string(whole).replace(at, 1, "\xFF"));
        const auto fault = FaultOf([&] { CompiledHelp(damaged).Read(u"/sub/bills.htm"); });
        EXPECT_TRUE(fault == 0 || fault == 53 || fault == 57) << at << ": " << fault;
    }
}

std::string Entry(std::string_view name, std::string_view place) {
    return "<li><object type=text/sitemap><param name=Name value='" + std::string(name) +
           "'><param name=Local value='" + std::string(place) + "'></object>";
}

TEST(CompiledHelp, ResolvesAddressesAsRealFilesWriteThem) {
    const MadeHelpFile file({{"/page 1.html", ""},
                             {"/a%20b.htm", ""},
                             {"/a b.htm", ""},
                             {"/C#.htm", ""},
                             {"/sub/x.htm", ""},
                             {"/sub/gr\xC3\xBC\xC3\x9F.htm", ""}});
    const CompiledHelp help(file.Path());
    // The address, its page, and what it shows; nothing where it leads out
    const std::tuple<TextIn, TextIn, TextIn> rows[] = {
        {u"page%201.html", u"/first.htm", u"/page 1.html"},
        {u" page 1.html\n", u"/sub/x.htm", u"/page 1.html"},
        {u"a%20b.htm", u"/", u"/a%20b.htm"},
        {u"A%20B.htm#x%20y", u"/", u"/A%20B.htm#x y"},
        {u"C#.htm", u"/", u"/C#.htm"},
        {u"C%23.htm#top", u"/", u"/C#.htm#top"},
        {u"x.htm", u"/sub/toc.hhc", u"/sub/x.htm"},
        {u"sub\\x.htm#a", u"/sub/y.htm", u"/sub/x.htm#a"},
        {u"../sub/./x.htm?q=1", u"/sub/y.htm", u"/sub/x.htm"},
        {u"gr%C3%BC%C3%9F.htm", u"/sub/x.htm", u"/sub/gr\u00FC\u00DF.htm"},
        {u"gr%FC%DF.htm", u"/sub/x.htm", u"/sub/gr\u00FC\u00DF.htm"},
        {u"ms-its:Desk%20help.chm::/sub/x.htm", u"/", u"/sub/x.htm"},
        {u"MK:@MSITStore:C:\\Help\\DESK HELP.CHM::sub/x.htm#a", u"/", u"/sub/x.htm#a"},
        {u"its:desk help.chm::/none.htm", u"/", u"/none.htm"},
        {u"::/sub/x.htm", u"/", u"/sub/x.htm"},
        {u"%2e%2e/%2e%2e/etc/passwd", u"/", u"/%2e%2e/%2e%2e/etc/passwd"},
        {u"#late", u"/sub/x.htm", u"#late"},
        {u"ms-its:other.chm::/sub/x.htm", u"/", u""},
        {u"http://example.org/sub/x.htm", u"/", u""},
        {u"//example.org/sub/x.htm", u"/", u""},
        {u"file:///sub/x.htm", u"/", u""},
        {u"javascript:alert(1)", u"/", u""},
    };
    for (const auto& [address, page, shown] : rows) {
        const auto topic = help.Resolve(address, page);
        std::u16string got;
        if (topic) got = topic->path + (topic->anchor.empty() ? u"" : u"#" + topic->anchor);
        EXPECT_EQ(ToUtf8(got), ToUtf8(shown)) << ToUtf8(address);
    }
}

TEST(CompiledHelp, OpensFilesOfTheWidespreadCompiler) {
    // A project below a folder, in Russian; contents and index lie beside the pages.
    const auto decode = [](std::string_view charset, std::string_view bytes) {
        return std::optional(
            FromUtf8("[" + std::string(charset) + "]" + std::string(bytes.size(), 'x')));
    };
    const std::string system = Bytes(3) + SystemValue(10, "abc") + SystemValue(4, Bytes(0x419)) +
                               SystemValue(0, "html\\Toc.hhc") + SystemValue(1, "html\\Index.hhk") +
                               SystemValue(2, "html\\page%201.htm") + SystemValue(3, "\xCF\xF0");
    const std::string index =
        "<ul>" + Entry("one", "x.htm") +
        "<li><object type=text/sitemap><param name=Name value=two><param name=Name value=First>"
        "<param name=Local value=x.htm><param name=Name value=Second><param name=Local "
        "value='page 1.htm'></object>"
        "<li><object type=text/sitemap><param name=Name value=three><param name='See Also' "
        "value=one></object></ul>";
    const MadeHelpFile file(
        {{"/#SYSTEM", system},
         {"/html/Toc.hhc",
          "<meta charset=utf-8><ul>" + Entry("Page", "page%201.htm") + Entry("Web", "http://x/")},
         {"/html/Index.hhk", "<meta charset=utf-8>" + index},
         {"/html/page 1.htm", "<meta charset=KOI8-R>\xF0"},
         {"/html/x.htm", "\xFF\xFEx\0\x3F\x04" + std::string()}});
    CompiledHelp help(file.Path(), decode);
    EXPECT_EQ(help.Title(), u"[windows-1251]xx");
    EXPECT_EQ(help.DefaultTopic().path, u"/html/page 1.htm");
    const std::vector<HelpEntry> contents = {{0, u"Page", {u"/html/page 1.htm", u""}, u"", u""},
                                             {0, u"Web", {}, u"http://x/", u""}};
    EXPECT_EQ(help.Contents(), contents);
    const std::vector<HelpEntry> entries = {{0, u"one", {u"/html/x.htm", u""}, u"", u""},
                                            {0, u"two", {}, u"", u""},
                                            {1, u"First", {u"/html/x.htm", u""}, u"", u""},
                                            {1, u"Second", {u"/html/page 1.htm", u""}, u"", u""},
                                            {0, u"three", {}, u"", u""},
                                            {1, u"one", {}, u"", u"one"}};
    EXPECT_EQ(help.Index(), entries);
    EXPECT_TRUE(help.TextOf(u"/html/page 1.htm").starts_with(u"[koi8-r]"));
}

TEST(CompiledHelp, FindsContentsAndFirstPageOfAWindow) {
    std::string window = Bytes(1) + Bytes(0xC4) + std::string(0xC4, '\0');
    window.replace(8 + 0x60, 4, Bytes(1)).replace(8 + 0x68, 4, Bytes(9));
    const MadeHelpFile file({{"/#WINDOWS", window},
                             {"/#STRINGS", std::string("\0toc.hhc\0second.htm\0", 21)},
                             {"/a.hhc", Entry("Wrong", "first.htm")},
                             {"/toc.hhc", Entry("Right", "second.htm")},
                             {"/first.htm", ""},
                             {"/second.htm", ""}});
    const CompiledHelp help(file.Path());
    EXPECT_EQ(help.DefaultTopic().path, u"/second.htm");
    EXPECT_EQ(help.Contents()[0].title, u"Right");
}

// Each made the client wait for minutes or take gigabytes; here they would run into the limit of
// the test's time.
TEST(CompiledHelp, LiesAboutLengthsCostNothing) {
    std::string folders;
    for (int i = 0; i < 2'000'000; ++i) folders += "/a";
    std::string pairs = Bytes(0x7FFFFFFF);
    for (int i = 0; i < 500'000; ++i) pairs += Bytes(7) + Bytes(1);
    const MadeHelpFile file({{"/#SYSTEM", Bytes(3) + std::string(4'000'000, '\0')},
                             {"/#STRINGS", folders},
                             {"/#IVB", pairs},
                             {"/#WINDOWS", std::string(5'000'000, '\1')},
                             {"/a.hhc", Entry("A" + folders, folders) + folders},
                             {"/a.htm", folders}});
    CompiledHelp help(file.Path());
    EXPECT_EQ(help.Contents()[0].title.size(), 500u);
    EXPECT_TRUE(help.TopicOfContext(7));
    EXPECT_FALSE(help.TopicOfContext(8));
}

TEST(CompiledHelp, SearchFindsWordsWhateverTheirMarkup) {
    const MadeHelpFile file(
        {{"/a.htm", "<title>Late &amp; fees</title><p>The gr<b>ace</b> PERIOD of m&uuml;ller"},
         {"/b.htm", "<meta charset=utf-8>Grace of a p<!-- x -->eriod, \xD0\x9F\xD0\xBE"},
         {"/c.htm", "<p>grace<p>period <script>grace period</script>"},
         {"/d.txt", "grace period"}});
    const std::pair<TextIn, std::string_view> rows[] = {
        {u"grace period", "a2 b2 c2 "}, {u"\"grace period\"", "a1 "}, {u"M\u00DCLLER", "a1 "},
        {u"\u043F\u041E", "b1 "},       {u"grace nowhere", ""},       {u" \" ", ""},
    };
    for (const auto& [words, expected] : rows) {
        HelpSearch search(std::make_shared<CompiledHelp>(file.Path()), words);
        while (!search.AtEnd()) search.Step();
        std::string found;
        for (const HelpFind& find : search.Found()) {
            found += ToUtf8(find.path.substr(1, 1)) + std::to_string(find.places) + ' ';
        }
        EXPECT_EQ(found, expected) << ToUtf8(words);
        if (words == u"M\u00DCLLER") {
            EXPECT_EQ(search.Found()[0].title, u"Late & fees");
            EXPECT_EQ(search.Found()[0].excerpt, u"The grace PERIOD of m\u00FCller");
        }
    }
}

}  // namespace
}  // namespace halvek
