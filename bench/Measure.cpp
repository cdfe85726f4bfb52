// SPDX-License-Identifier: MIT
#include "Measure.h"

#include <benchmark/benchmark.h>

#include <time.h>

#include <algorithm>
#include <map>
#include <string>

namespace bench {

namespace {

/// Collects the time of each repetition under the name of its benchmark.
class Collector : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration) continue;
            times_[run.run_name.function_name].push_back(run.cpu_accumulated_time /
                                                         static_cast<double>(run.iterations) * 1e9);
        }
    }

    std::optional<double> Median(const std::string& name) {
        std::vector<double>& times = times_[name];
        if (times.empty()) return std::nullopt;
        const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
        std::ranges::nth_element(times, middle);
        return *middle;
    }

  private:
    std::map<std::string, std::vector<double>> times_;
};

void Register(const char* name, const Work& work) {
    if (!work) return;
    benchmark::RegisterBenchmark(name, [work](benchmark::State& state) {
        for (auto _ : state) work();
    });
}

}  // namespace

Times Measure(const Case& work, int repetitions) {
    std::string count = "--benchmark_repetitions=" + std::to_string(repetitions);
    char program[] = "halvek-bench";
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char time[] = "--benchmark_min_time=0.02";
    char* arguments[] = {program, interleaving, count.data(), time, nullptr};
    int argumentCount = 4;
    benchmark::Initialize(&argumentCount, arguments);
    Register("floor", work.floor);
    Register("ours", work.ours);
    Register("peer", work.peer);
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::ClearRegisteredBenchmarks();
    return {collector.Median("floor"), collector.Median("ours"), collector.Median("peer")};
}

double MeasureOnce(const Work& work) {
    const auto now = [] {
        timespec time{};
        ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
    };
    const double start = now();
    work();
    return now() - start;
}

}  // namespace bench
