// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"
#include "tests/HelpFile.h"

#include <halvekutils/help/CompiledHelp.h>
#include <halvekutils/help/HelpText.h>

#include <gtest/gtest.h>

namespace halvek {
namespace {

const HelpFile& TheHelp() {
    static const HelpFile help;
    return help;
}

TEST(CompiledHelp, KnowsItsTopicsAndContents) {
    CompiledHelp help(TheHelp().Path());
    EXPECT_EQ(help.TopicOfContext(200)->path, u"/sub/bills.htm");
    const std::vector<HelpEntry> contents = {
        {0, u"First", {u"/first.htm", u""}, {}, {}},
        {1, u"Bills & fees", {u"/sub/bills.htm", u"late"}, {}, {}}};
    EXPECT_EQ(help.Contents(), contents);
}

TEST(CompiledHelp, ReadsObjectsInAnyLetterCase) {
    CompiledHelp help(TheHelp().Path());
    EXPECT_EQ(help.Read(u"/Sub/DOT.gif"), ReadFile(HelpFile::Source("sub/dot.gif")));
    const std::u16string bills = HelpTextOf(help.Read(u"/sub/bills.htm"));
    EXPECT_NE(bills.find(u"gr\u00FC\u00DFe"), std::string::npos);
    EXPECT_TRUE(bills.ends_with(u"<p>line 31668081</p><a name=late>Late</a>"));
}

TEST(CompiledHelp, AFileThatIsCutOffOrDamagedIsAFaultAtMost) {
    const std::string whole = ReadFile(TheHelp().Path());
    // The headers and the directory closely, the compressed data here and there
    for (std::size_t at = 0; at < whole.size(); at += at < 0x1000 ? 37 : 1499) {
        const auto cut = TheHelp().Beside(whole.substr(0, at));
        EXPECT_EQ(FaultOf([&] { CompiledHelp help(cut); }), 57) << at;
        const auto damaged = TheHelp().Beside(std::string(whole).replace(at, 1, "\xFF"));
        const auto fault = FaultOf([&] { CompiledHelp(damaged).Read(u"/sub/bills.htm"); });
        EXPECT_TRUE(fault == 0 || fault == 53 || fault == 57) << at << ": " << fault;
    }
}

}  // namespace
}  // namespace halvek
