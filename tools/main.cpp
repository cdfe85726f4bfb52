// SPDX-License-Identifier: MIT
// Shows what the library understands of a server's texts, and what it ignores, defaults or finds
// twice.
#include "Input.h"
#include "Report.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace check;

// Exit statuses
constexpr int kUnderstood = 0;
constexpr int kRemarks = 1;
constexpr int kFailed = 2;

struct Arguments {
    std::string format;
    std::vector<std::string> files;
    bool utf8 = false;
    bool json = false;
    bool quiet = false;
};

void Describe(CLI::App& app, Arguments& arguments) {
    std::vector<std::string> names;
    for (const Format& format : Formats()) names.emplace_back(format.name);
    app.add_option("format", arguments.format, "What the texts are")
        ->required()
        ->check(CLI::IsMember(names));
    app.add_option("file", arguments.files, "Files; none or - is the standard input");
    app.add_flag("--utf8", arguments.utf8, "The files are UTF-8, not Windows-1252");
    auto* const json = app.add_flag("--json", arguments.json, "Write JSON");
    app.add_flag("-q,--quiet", arguments.quiet, "Write the remarks, and no tables")->excludes(json);
    app.set_version_flag("-v,--version", "halvekutils-check " HALVEK_CHECK_VERSION);
}

const Format& FormatNamed(std::string_view name) {
    for (const Format& format : Formats()) {
        if (format.name == name) return format;
    }
    return Formats().front();  // not reached: the option accepts only these names
}

/// The exit status for one file.
int Check(const std::string& file, const Arguments& arguments, Report& report) {
    try {
        const Encoding encoding = arguments.utf8 ? Encoding::Utf8 : Encoding::Windows1252;
        const Reading reading = FormatNamed(arguments.format).read(ReadText(file, encoding));
        report.Add(file, reading);
        return reading.remarks.All().empty() ? kUnderstood : kRemarks;
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "halvekutils-check: %s: %s\n", file.c_str(), fault.what());
        return kFailed;
    }
}

int Run(const Arguments& arguments) {
    std::unique_ptr<Report> report;
    if (arguments.json) {
        report = std::make_unique<JsonReport>(stdout);
    } else {
        report = std::make_unique<TextReport>(stdout, !arguments.quiet);
    }
    int status = kUnderstood;
    for (const std::string& file : arguments.files) {
        status = std::max(status, Check(file, arguments, *report));
    }
    report->End();
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return status;
    std::perror("halvekutils-check: standard output");
    return kFailed;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Shows what HalvekUtils understands of a server's texts, and remarks on the rest.",
                 "halvekutils-check");
    Arguments arguments;
    Describe(app, arguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kUnderstood : kFailed;
    }
    if (arguments.files.empty()) arguments.files.emplace_back("-");
    return Run(arguments);
}
