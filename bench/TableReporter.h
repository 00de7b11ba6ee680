#pragma once

#include <benchmark/benchmark.h>

#include <map>

#include "bench/Harness.h"

namespace bench {

// Gathers all repetitions and prints one table at the end: figure, ours, yardstick, ratio of the medians, goal, and
// whether it is met or by how much it is missed.
class TableReporter : public benchmark::BenchmarkReporter {
public:
    explicit TableReporter(const std::vector<Figure>& figures) : figures_(figures) {}

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    // What stopped a contestant, one line each; empty after a sound run.
    const std::vector<std::string>& Failures() const { return failures_; }

private:
    struct Summary {
        double median = 0;  // nanoseconds
        double spread = 0;  // half the distance between the quartiles, as a part of the median
    };
    Summary SummaryOf(const Figure& figure, const std::string& contestant) const;
    void PrintFigure(const Figure& figure) const;

    const std::vector<Figure>& figures_;
    std::map<std::string, std::vector<double>> times_;
    std::vector<std::string> failures_;
};

}  // namespace bench
