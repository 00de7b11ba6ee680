#pragma once

#include <QtGlobal>
#include <functional>
#include <string>
#include <vector>

namespace bench {

// One piece of work, done over and over. It gives a digest of what it read or wrote, so that a contestant who does
// less than the others is found out.
using Work = std::function<qint64()>;
// Opens what the work needs; not timed. What the work holds is closed when it is let go.
using Start = std::function<Work()>;

struct Yardstick {
    std::string name;
    Start start;
    double goal = 0;  // ours may take so many times as long; 0: shown for comparison only
};

// A figure of ours beside its yardsticks.
struct Figure {
    std::string name;
    Start ours;
    std::vector<Yardstick> yardsticks;
    int warmUp = 1;            // pieces of work before the clock runs
    int iterations = 0;        // pieces of work a repetition; 0: as many as fill the time
    int repetitions = 0;       // at most; 0: as many as the effort says
    bool timesItself = false;  // the work gives its own time in nanoseconds instead of a digest
};

struct Effort {
    int repetitions;
    double secondsEach;
    int mostWarmUp;
};

constexpr const char* OursName = "ours";
std::string BenchmarkName(const Figure& figure, const std::string& contestant);
// Hands every contestant to Google Benchmark. The figures must outlive the run.
void Register(const std::vector<Figure>& figures, Effort effort);

}  // namespace bench
