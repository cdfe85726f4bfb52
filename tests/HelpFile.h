#pragma once

#include "tests/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace halvek {

/// A help file compiled with chmcmd of the package fp-utils: a first page in Windows-1252, a long
/// second one in UTF-8 and a picture of one pixel.
class HelpFile {
  public:
    HelpFile() {
        WriteFile(folder_ / "help.hhp",
                  "[OPTIONS]\nCompiled file=help.chm\nContents file=help.hhc\n"
                  "Default topic=first.htm\nTitle=Desk help\n"
                  "[FILES]\nfirst.htm\nsub/bills.htm\nsub/dot.gif\n"
                  "[MAP]\n#define IDH_FIRST 100\n#define IDH_BILLS 200\n"
                  "[ALIAS]\nIDH_FIRST=first.htm\nIDH_BILLS=sub/bills.htm\n");
        WriteFile(folder_ / "help.hhc",
                  "<ul><li><object type=\"text/sitemap\"><param name=\"Name\" value=\"First\">"
                  "<param name=\"Local\" value=\"first.htm\"></object><ul><li>"
                  "<object type='text/sitemap'><param name=Name value='Bills &amp; fees'>"
                  "<param name=Local value=sub\\bills.htm#late></object></ul></ul>");
        WriteFile(folder_ / "first.htm",
                  "<p>Caf\xE9 \x80 5</p><a href=\"SUB/Bills.htm"
                  "#late\">Bills</a> <a href=\"http://example.org/x\">Web</a>");
        std::string lines =
            "<meta charset=\"utf-8\">gr\xC3\xB6\xC3\x9F"
            "e<img src=\"dot.gif\">";
        for (int i = 0; i < 4000; ++i) lines += "<p>line " + std::to_string(i * 7919) + "</p>";
        std::filesystem::create_directory(folder_ / "sub");
        WriteFile(folder_ / "sub/bills.htm", lines + "<a name=late>Late</a>");
        WriteFile(folder_ / "sub/dot.gif", kPicture);
        const std::string compile = "cd " + folder_.Path().string() + "; chmcmd help.hhp >log 2>&1";
        if (std::system(compile.c_str()) == 0 && std::filesystem::exists(Path())) return;
        throw std::runtime_error("chmcmd (fp-utils) cannot compile: " + ReadFile(folder_ / "log"));
    }

    std::filesystem::path Path() const { return folder_ / "help.chm"; }

    /// Another file beside it, which holds these bytes.
    std::filesystem::path Beside(std::string_view bytes) const {
        WriteFile(folder_ / "bad.chm", bytes);
        return folder_ / "bad.chm";
    }

    static constexpr std::string_view kPicture{
        "GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35};

  private:
    TemporaryFolder folder_;
};

}  // namespace halvek
