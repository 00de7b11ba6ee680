#include "bench/Harness.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <exception>
#include <map>

namespace bench {

namespace {

// The first contestant of a figure says what the others must come to; nothing at all is never right.
bool AgreesWithOthers(const Figure& figure, qint64 digest) {
    static std::map<std::string, qint64> digests;
    if (digest == 0) return false;
    return digests.emplace(figure.name, digest).first->second == digest;
}

void Measure(benchmark::State& state, const Figure& figure, const Start& start, int warmUp) {
    const Work work = start();
    qint64 digest = 0;
    for (int i = 0; i < warmUp; ++i) digest += work();
    if (!figure.timesItself && !AgreesWithOthers(figure, digest))
        return state.SkipWithError("the contestants of this figure do not do the same work");

    for (auto _ : state) {
        const qint64 result = work();
        if (figure.timesItself)
            state.SetIterationTime(static_cast<double>(result) / 1e9);
        else
            benchmark::DoNotOptimize(result);
    }
}

void RegisterOne(const Figure& figure, const std::string& name, const Start& start, Effort effort) {
    const int warmUp = std::min(figure.warmUp, effort.mostWarmUp);
    const auto run = [&figure, start, warmUp](benchmark::State& state) {
        try {
            Measure(state, figure, start, warmUp);
        } catch (const std::exception& error) {
            state.SkipWithError(error.what());
        }
    };
    auto* registered = benchmark::RegisterBenchmark(BenchmarkName(figure, name).c_str(), run);
    const int repetitions = figure.repetitions > 0 ? figure.repetitions : effort.repetitions;
    registered->Repetitions(std::min(repetitions, effort.repetitions));
    figure.timesItself ? registered->UseManualTime() : registered->UseRealTime();
    if (figure.iterations > 0)
        registered->Iterations(figure.iterations);
    else
        registered->MinTime(effort.secondsEach);
}

}  // namespace

std::string BenchmarkName(const Figure& figure, const std::string& contestant) {
    return figure.name + " / " + contestant;
}

void Register(const std::vector<Figure>& figures, Effort effort) {
    for (const Figure& figure : figures) {
        RegisterOne(figure, OursName, figure.ours, effort);
        for (const Yardstick& yardstick : figure.yardsticks)
            RegisterOne(figure, yardstick.name, yardstick.start, effort);
    }
}

}  // namespace bench
