// SPDX-License-Identifier: MIT
#include "Measure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <map>

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

void Use(const void* result) {
    benchmark::DoNotOptimize(result);
    benchmark::ClobberMemory();
}

Times Measure(const Case& work) {
    Register("floor", work.floor);
    Register("ours", work.ours);
    Register("peer", work.peer);
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::ClearRegisteredBenchmarks();
    return {collector.Median("floor"), collector.Median("ours"), collector.Median("peer")};
}

Growth MeasureGrowth(const Row& row) {
    const auto timeAt = [&](double scale) {
        const Case work = row.prepare(scale);
        return Measure({.floor = {}, .ours = work.ours, .peer = {}}).ours.value();
    };
    const double tenth = timeAt(0.1);
    const double size = timeAt(1);
    const double tenfold = timeAt(10);
    return {std::log10(size / tenth), std::log10(tenfold / size)};
}

}  // namespace bench
