// SPDX-License-Identifier: MIT
#pragma once

#include "tests/TemporaryFolder.h"

#include <cstdlib>

namespace halvek {

/// The help file made from the folder help, compiled with chmcmd of the package fp-utils: a first
/// page in Windows-1252, a second one in UTF-8 and a picture. By default the second page gets so
/// many lines that it does not fit into one compressed span.
class HelpFile {
  public:
    explicit HelpFile(int lines = 4000) {
        std::filesystem::copy(Source(""), folder_.Path(), std::filesystem::copy_options::recursive);
        std::string page =
            "<meta charset=\"utf-8\">gr\xC3\xBC\xC3\x9F"
            "e<img src=\"dot.gif\">";
        for (int i = 0; i < lines; ++i) page += "<p>line " + std::to_string(i * 7919) + "</p>";
        WriteFile(folder_ / "sub/bills.htm", page + "<a name=late>Late</a>");
        const std::string compile = "cd " + folder_.Path().string() + "; chmcmd help.hhp >log 2>&1";
        if (std::system(compile.c_str()) == 0 && std::filesystem::exists(Path())) return;
        throw std::runtime_error("chmcmd (fp-utils) cannot compile: " + ReadFile(folder_ / "log"));
    }

    static const HelpFile& Shared() {
        static const HelpFile file;
        return file;
    }

    std::filesystem::path Path() const { return folder_ / "help.chm"; }
    static std::filesystem::path Source(std::string_view name) {
        return std::filesystem::path(HALVEK_HELP_SOURCES) / name;
    }
    /// Another file beside it, with these bytes.
    std::filesystem::path Beside(std::string_view bytes) const {
        WriteFile(folder_ / "bad.chm", bytes);
        return folder_ / "bad.chm";
    }

  private:
    TemporaryFolder folder_;
};

}  // namespace halvek
