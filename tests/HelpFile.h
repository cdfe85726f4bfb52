#pragma once

#include "tests/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace halvek {

/// A help file in a folder of its own, compiled with chmcmd of the package fp-utils: a first page
/// in Windows-1252, a long second one in UTF-8, a picture and a style sheet.
class HelpFile {
  public:
    HelpFile() {
        std::filesystem::create_directory(folder_ / "sub");
        WriteFile(folder_ / "help.hhp",
                  "[OPTIONS]\nCompiled file=help.chm\nContents file=help.hhc\n"
                  "Default topic=welcome.htm\nTitle=Desk help\n"
                  "[FILES]\nwelcome.htm\nsub/billing.htm\nstyle.css\nsub/dot.gif\n"
                  "[MAP]\n#define IDH_WELCOME 100\n#define IDH_BILLING 200\n"
                  "[ALIAS]\nIDH_WELCOME=welcome.htm\nIDH_BILLING=sub/billing.htm\n");
        WriteFile(folder_ / "help.hhc", "<ul>" + Entry("Welcome", "welcome.htm") + "<ul>" +
                                            Entry("Bills &amp; fees", "sub\\billing.htm#late") +
                                            "</ul>" + Entry("Gone", "gone.htm") + "</ul>");
        WriteFile(folder_ / "welcome.htm",
                  "<html><head><title>Welcome</title><link rel=stylesheet href=style.css></head>"
                  "<body><p>Caf\xE9 \x80 5</p><a href=\"SUB/Billing.htm#late\">Bills</a> "
                  "<a href=\"http://example.org/x\">Web</a></body></html>");
        std::string lines;
        for (int i = 0; i < 4000; ++i) lines += "<p>line " + std::to_string(i * 7919) + "</p>";
        WriteFile(folder_ / "sub/billing.htm",
                  "<html><head><meta charset=\"utf-8\"></head><body>gr\xC3\xB6\xC3\x9F"
                  "e<img src=\"dot.gif\">" +
                      lines + "<a name=late>Late</a></body></html>");
        WriteFile(folder_ / "style.css", "p { color: #102030 }");
        WriteFile(folder_ / "sub/dot.gif", std::string(kPicture));
        const std::string compile =
            "cd '" + folder_.Path().string() + "' && chmcmd help.hhp >log 2>&1";
        if (std::system(compile.c_str()) != 0 || !std::filesystem::exists(Path())) {
            throw std::runtime_error("chmcmd (package fp-utils) cannot compile: " +
                                     ReadFile(folder_ / "log"));
        }
    }

    std::filesystem::path Path() const { return folder_ / "help.chm"; }

    /// Another file beside it, which holds these bytes.
    std::filesystem::path Beside(std::string_view name, std::string_view bytes) const {
        WriteFile(folder_ / name, bytes);
        return folder_ / name;
    }

    /// One red pixel.
    static constexpr std::string_view kPicture{
        "GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35};

  private:
    static std::string Entry(const std::string& name, const std::string& page) {
        return "<li><object type=\"text/sitemap\"><param name=Name value=\"" + name +
               "\"><param name=Local value=\"" + page + "\"></object>";
    }

    TemporaryFolder folder_;
};

}  // namespace halvek
