// Ratios of two pieces of work, measured in turn in one run, so that a machine whose speed drifts
// does not bend them; in processor time, so that other work on the machine does not count.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <vector>

namespace tarvel::bench {

/// Processor time of this thread so far.
inline double processorSeconds() {
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

template <class Work> double seconds(Work&& work) {
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Times `work` against `baseline` in pairs. Reports the median of work as the benchmark's time,
/// and the median of the pairs' ratios as the counter "ratio".
template <class Work, class Baseline>
void comparePairs(benchmark::State& state, Work&& work, Baseline&& baseline) {
    std::vector<double> ratios;
    std::vector<double> baselines;
    work();
    baseline();
    for (auto _ : state) {
        const double other = seconds(baseline);
        const double own = seconds(work);
        state.SetIterationTime(own);
        ratios.push_back(own / other);
        baselines.push_back(other);
    }
    state.counters["ratio"] = median(ratios);
    state.counters["baseline_ms"] = median(baselines) * 1e3;
}

} // namespace tarvel::bench
