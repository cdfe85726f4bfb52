#include "tests/FaultOf.h"
#include "tests/HelpFile.h"

#include <halvekutils/devices/CompiledHelp.h>
#include <halvekutils/devices/HelpText.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace halvek {
namespace {

const HelpFile& TheHelp() {
    static const HelpFile help;
    return help;
}

TEST(CompiledHelp, KnowsItsTopicsAndContents) {
    CompiledHelp help(TheHelp().Path());
    EXPECT_EQ(help.Title(), u"Desk help");
    EXPECT_EQ(help.DefaultTopic().path, u"/welcome.htm");
    EXPECT_EQ(help.TopicOfContext(100)->path, u"/welcome.htm");
    EXPECT_EQ(help.TopicOfContext(200)->path, u"/sub/billing.htm");
    EXPECT_EQ(help.TopicOfContext(300), std::nullopt);
    const std::vector<HelpContentsEntry> contents = {
        {0, u"Welcome", {u"/welcome.htm", u""}},
        {1, u"Bills & fees", {u"/sub/billing.htm", u"late"}},
        {0, u"Gone", {u"/gone.htm", u""}},
    };
    EXPECT_EQ(help.Contents(), contents);
}

TEST(CompiledHelp, ReadsObjectsInAnyLetterCase) {
    CompiledHelp help(TheHelp().Path());
    EXPECT_EQ(help.Read(u"/sub/dot.gif"), HelpFile::kPicture);
    EXPECT_NE(HelpTextOf(help.Read(u"/WELCOME.HTM")).find(u"Caf\u00E9 \u20AC 5"),
              std::string::npos);
    // It lies in more than one compressed stretch.
    const std::u16string billing = HelpTextOf(help.Read(u"/Sub/Billing.htm"));
    EXPECT_NE(billing.find(u"gr\u00F6\u00DFe"), std::string::npos);
    EXPECT_TRUE(billing.ends_with(u"<p>line 31668081</p><a name=late>Late</a></body></html>"));
    EXPECT_EQ(FaultOf([&] { help.Read(u"/gone.htm"); }), 53);
}

TEST(CompiledHelp, ReadsTopicsAsHostsAndFilesWriteThem) {
    const struct {
        const char16_t* text;
        HelpTopic topic;
    } rows[] = {
        {u"::/a/b.htm", {u"/a/b.htm", u""}},
        {u"a\\b.htm#c", {u"/a/b.htm", u"c"}},
        {u"::a.htm#c>main", {u"/a.htm", u"c"}},
        {u"/../..//a/./b/../c.htm", {u"/a/c.htm", u""}},
        {u"", {u"", u""}},
        {u"::", {u"", u""}},
    };
    for (const auto& [text, topic] : rows) EXPECT_EQ(ParseHelpTopic(text), topic);
}

TEST(CompiledHelp, AFileThatIsCutOffIsAFault) {
    const std::string whole = ReadFile(TheHelp().Path());
    for (std::size_t length = 0; length < whole.size(); length += length < 0x60 ? 8 : 97) {
        const auto file = TheHelp().Beside("cut.chm", whole.substr(0, length));
        EXPECT_EQ(FaultOf([&] { CompiledHelp help(file); }), 57) << length;
    }
}

TEST(CompiledHelp, ADamagedFileReadsOrIsAFault) {
    const std::string whole = ReadFile(TheHelp().Path());
    // The headers and the directory closely, the compressed data here and there
    for (std::size_t at = 0; at < whole.size(); at += at < 0x1000 ? 37 : 1499) {
        for (const char damage : {'\x7F', '\xFF'}) {
            std::string bytes = whole;
            bytes[at] = damage;
            const auto file = TheHelp().Beside("damaged.chm", bytes);
            try {
                CompiledHelp help(file);
                help.TopicOfContext(200);
                help.Read(u"/sub/billing.htm");
            } catch (const RuntimeError& fault) {
                EXPECT_NE(fault.Code(), Fault::OutOfMemory) << at;
            }
        }
    }
}

TEST(CompiledHelp, HostileContentsStaySmall) {
    std::u16string deep;
    for (int i = 0; i < 30'000; ++i)
        deep += u"<ul><object type=text/sitemap><param name=Name value=x></object>";
    const auto contents = ParseHelpContents(deep + u"<param name=\"");
    EXPECT_EQ(contents.size(), 20'000u);
    EXPECT_EQ(contents.back().depth, 32);
    EXPECT_TRUE(ParseHelpContents(u"<object type='text/sitemap'><param").empty());
}

}  // namespace
}  // namespace halvek
