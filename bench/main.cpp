// SPDX-License-Identifier: MIT
#include "Measure.h"

#include <halvekutils/qt/QtPlatform.h>

#include <QApplication>
#include <QLoggingCategory>
#include <benchmark/benchmark.h>

#include <malloc.h>

#include <cstdio>
#include <string_view>

namespace bench {

namespace {

struct Options {
    std::string only;  ///< part of the names of the rows to run
    bool growth = true;
};

Options Read(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--no-growth") {
            options.growth = false;
        } else {
            options.only = argument;
        }
    }
    return options;
}

/// Freed memory stays with the process, so every repetition finds the heap equally warm.
void KeepTheHeapWarm() {
    mallopt(M_TRIM_THRESHOLD, 2'000'000'000);
    mallopt(M_MMAP_THRESHOLD, 2'000'000'000);
}

void InitializeBenchmark() {
    char program[] = "halvek-bench";
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char repetitions[] = "--benchmark_repetitions=9";
    char time[] = "--benchmark_min_time=0.02";
    char* arguments[] = {program, interleaving, repetitions, time, nullptr};
    int count = 4;
    benchmark::Initialize(&count, arguments);
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

/// Prints the row; false when it misses one of its limits.
bool Print(const Row& row, bool growth) {
    const Times times = Measure(row.prepare(1));
    const double ours = times.ours.value();
    const double overFloor = times.floor ? ours / *times.floor : 0;
    const double underPeer = times.peer ? *times.peer / ours : 0;
    const bool met = (row.atMost == 0 || overFloor <= row.atMost) && underPeer >= row.fasterBy;
    std::string grown = "-";
    if (growth && row.grows) {
        const Growth exponents = MeasureGrowth(row);
        grown = Ratio(exponents.toSize) + ", " + Ratio(exponents.toTenfold);
    }
    std::printf("| %s | %s | %s | %s | %s | %s | %s | %s | %s | %s |\n", row.work.c_str(),
                Duration(ours).c_str(), row.floor.empty() ? "-" : row.floor.c_str(),
                times.floor ? Ratio(overFloor).c_str() : "-", Limit(row.atMost).c_str(),
                row.peer.empty() ? "-" : row.peer.c_str(),
                times.peer ? Ratio(underPeer).c_str() : "-", Limit(row.fasterBy).c_str(),
                grown.c_str(), met ? "yes" : "NO");
    std::fflush(stdout);
    return met;
}

std::shared_ptr<halvek::Utils> session;

int Run(const Options& options) {
    std::printf(
        "| work | ours | floor | ours / floor | at most | peer | peer / ours | at least "
        "| growth | met |\n|---|---|---|---|---|---|---|---|---|---|\n");
    Session();
    bool allMet = true;
    for (const auto& rows : {TextRows(), RefdataRows(), PrefsRows(), LogRows(), SelectionRows(),
                             ValueRows(), WindowRows()}) {
        for (const Row& row : rows) {
            if (row.work.find(options.only) == std::string::npos) continue;
            allMet = Print(row, options.growth) && allMet;
        }
    }
    return allMet ? 0 : 1;
}

}  // namespace

halvek::Utils& Session() {
    if (session == nullptr) {
        session = halvek::Utils::Create();
        session->InitUtils(u"", u"Benchmarks", u"", false, u"");
    }
    return *session;
}

}  // namespace bench

/// Prints the table of ratios. Arguments: --no-growth, and a part of a row's name to run only that.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules("qt.qpa.*=false");
    QApplication app(argc, argv);
    halvek::QtPlatform desktop;
    bench::KeepTheHeapWarm();
    bench::InitializeBenchmark();
    return bench::Run(bench::Read(argc, argv));
}
