// SPDX-License-Identifier: MIT
#include "Desktop.h"
#include "Measure.h"
#include "Record.h"

#include <halvekutils/qt/QtPlatform.h>

#include <QApplication>
#include <QLoggingCategory>

#include <malloc.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

namespace {

constexpr int kRepetitions = 9;
constexpr int kGrowthRepetitions = 3;
constexpr int kFirstTimes = 15;
constexpr int kBroken = 2;  // exit code: no table, unlike 1, a goal that is missed

Rows AllRows() {
    Rows all = RowsWithoutWindows();
    for (Row& row : WindowRows()) all.push_back(std::move(row));
    return all;
}

// A row is measured in a process of its own, so that none inherits the heap of another: this
// program, called with --measure, the row, the scale, the repetitions and the way to take once
// ("all": all of them, repeated). It prints the nanoseconds of floor, ours and peer.

/// Freed memory stays with the process, so every repetition finds the heap equally warm.
void KeepTheHeapWarm() {
    mallopt(M_TRIM_THRESHOLD, 2'000'000'000);
    mallopt(M_MMAP_THRESHOLD, 2'000'000'000);
}

int MeasureHere(char** arguments) {
    const Row row = AllRows().at(std::stoul(arguments[0]));
    const double scale = std::stod(arguments[1]);
    const std::string_view way = arguments[3];
    Session();
    Case work = row.prepare(scale);
    if (way == "all") {
        KeepTheHeapWarm();
        if (scale != 1) work.floor = work.peer = nullptr;
        const Times times = Measure(work, std::stoi(arguments[2]));
        std::printf("%g %g %g\n", times.floor.value_or(0), times.ours.value(),
                    times.peer.value_or(0));
    } else {
        const Work& once = way == "ours" ? work.ours : work.peer;
        std::printf("0 %g 0\n", MeasureOnce(once));
    }
    return EXIT_SUCCESS;
}

/// What this program prints when it is called with the arguments.
Times MeasureElsewhere(const char* program, std::size_t row, double scale, int repetitions,
                       const char* way) {
    char command[4096];
    std::snprintf(command, sizeof command, "'%s' --measure %zu %g %d %s", program, row, scale,
                  repetitions, way);
    FILE* const output = ::popen(command, "r");
    double floor = 0;
    double ours = 0;
    double peer = 0;
    const int read =
        output == nullptr ? 0 : std::fscanf(output, "%lf %lf %lf", &floor, &ours, &peer);
    if (output == nullptr || ::pclose(output) != 0 || read != 3) {
        std::fprintf(stderr, "%s fails\n", command);
        std::exit(kBroken);
    }
    const auto given = [](double time) { return time > 0 ? std::optional(time) : std::nullopt; };
    return {given(floor), ours, given(peer)};
}

/// Each way as the first work of many processes, in turns.
Times MeasureFirst(const char* program, std::size_t row) {
    std::vector<double> ours;
    std::vector<double> peer;
    for (int i = 0; i < kFirstTimes; ++i) {
        ours.push_back(MeasureElsewhere(program, row, 1, 1, "ours").ours.value());
        peer.push_back(MeasureElsewhere(program, row, 1, 1, "peer").ours.value());
    }
    std::ranges::sort(ours);
    std::ranges::sort(peer);
    return {std::nullopt, ours[kFirstTimes / 2], peer[kFirstTimes / 2]};
}

std::string Duration(double nanoseconds) {
    char text[32];
    if (nanoseconds < 1e3) {
        std::snprintf(text, sizeof text, "%.1f ns", nanoseconds);
    } else if (nanoseconds < 1e6) {
        std::snprintf(text, sizeof text, "%.2f us", nanoseconds / 1e3);
    } else {
        std::snprintf(text, sizeof text, "%.2f ms", nanoseconds / 1e6);
    }
    return text;
}

std::string Ratio(double ratio) {
    char text[32];
    std::snprintf(text, sizeof text, ratio < 10 ? "%.2f" : "%.0f", ratio);
    return text;
}

std::string Limit(double limit) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", limit);
    return limit == 0 ? "-" : text;
}

/// The exponent with which our time grows from a tenth of the size to the size, and from the size
/// to ten times the size: 1 is linear, 2 quadratic.
std::string Growth(const char* program, std::size_t row) {
    const auto timeAt = [&](double scale) {
        return MeasureElsewhere(program, row, scale, kGrowthRepetitions, "all").ours.value();
    };
    const double tenth = timeAt(0.1);
    const double size = timeAt(1);
    const double tenfold = timeAt(10);
    return Ratio(std::log10(size / tenth)) + ", " + Ratio(std::log10(tenfold / size));
}

/// Measures and prints a row; false when it misses one of its limits.
bool Print(const Row& row, const Times& times, const std::string& instructions,
           const std::string& growth) {
    const double ours = times.ours.value();
    const double overFloor = times.floor ? ours / *times.floor : 0;
    const double underPeer = times.peer ? *times.peer / ours : 0;
    const bool met = (row.atMost == 0 || overFloor <= row.atMost) && underPeer >= row.fasterBy;
    std::printf("| %s | %s | %s | %s | %s | %s | %s | %s | %s | %s | %s |\n", row.work.c_str(),
                Duration(ours).c_str(), row.floor.empty() ? "-" : row.floor.c_str(),
                times.floor ? Ratio(overFloor).c_str() : "-", Limit(row.atMost).c_str(),
                row.peer.empty() ? "-" : row.peer.c_str(),
                times.peer ? Ratio(underPeer).c_str() : "-", Limit(row.fasterBy).c_str(),
                instructions.c_str(), growth.c_str(), met ? "yes" : "NO");
    std::fflush(stdout);
    return met;
}

int PrintTable(const char* program, std::string_view only, bool growth) {
    std::printf(
        "| work | ours | floor | ours / floor | at most | peer | peer / ours | at least "
        "| instructions | growth | met |\n|---|---|---|---|---|---|---|---|---|---|---|\n");
    const InstructionRecord record;
    const Rows rows = AllRows();
    bool allMet = true;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Row& row = rows[i];
        if (row.work.find(only) == std::string::npos) continue;
        const Times times = row.first ? MeasureFirst(program, i)
                                      : MeasureElsewhere(program, i, 1, kRepetitions, "all");
        const std::string grown = growth && row.grows ? Growth(program, i) : "-";
        allMet = Print(row, times, record.Of(row.work), grown) && allMet;
    }
    return allMet ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

}  // namespace bench

/// Prints the table of ratios, or with --desktop that of the windows on the display at hand. Other
/// arguments: --no-growth, and a part of a row's name to run only that.
int main(int argc, char** argv) {
    std::string_view only;
    bool growth = true;
    bool desktop = false;
    const bool measure = argc == 6 && std::strcmp(argv[1], "--measure") == 0;
    for (int i = 1; i < argc && !measure; ++i) {
        const std::string_view argument = argv[i];
        growth = growth && argument != "--no-growth";
        desktop = desktop || argument == "--desktop";
        if (!argument.starts_with("--")) only = argument;
    }
    if (!measure && !desktop) return bench::PrintTable(argv[0], only, growth);
    if (measure) qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules("qt.qpa.*=false");
    // What the off-screen platform cannot do, it says on the terminal, which takes time.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QApplication app(argc, argv);
    const halvek::QtPlatform platform;
    return measure ? bench::MeasureHere(argv + 2) : bench::PrintDesktop(only);
}
