#include "bench/TableReporter.h"

#include <algorithm>
#include <cstdio>

namespace bench {

namespace {

constexpr auto RowFormat = "%-42s %18s  %-34s %18s %8s %9s  %s\n";

std::string Printed(const char* format, auto... values) {
    char text[64];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

std::string TimeText(double nanoseconds, double spread) {
    constexpr std::pair<double, const char*> units[] = {{1e9, "s"}, {1e6, "ms"}, {1e3, "us"}, {1, "ns"}};
    const auto unit = std::ranges::find_if(units, [&](auto candidate) { return nanoseconds >= candidate.first; });
    const auto [size, name] = unit == std::end(units) ? units[3] : *unit;
    return Printed("%.2f %s +-%2.0f%%", nanoseconds / size, name, 100 * spread);
}

double Quantile(const std::vector<double>& sorted, double part) {
    const double place = part * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<size_t>(place);
    const size_t above = std::min(below + 1, sorted.size() - 1);
    return sorted[below] + (sorted[above] - sorted[below]) * (place - static_cast<double>(below));
}

std::string GoalText(double goal) {
    if (goal == 0) return "-";
    return goal == 1 ? "ahead" : Printed("<= %.1fx", goal);
}

std::string Verdict(double ratio, double goal) {
    if (goal == 0) return "";
    return ratio <= goal ? "met" : Printed("MISSED by %.0f%%", 100 * (ratio / goal - 1));
}

}  // namespace

bool TableReporter::ReportContext(const Context&) {
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration) continue;
        const std::string& name = run.run_name.function_name;
        if (run.error_occurred)
            failures_.push_back(name + ": " + run.error_message);
        else
            times_[name].push_back(1e9 * run.real_accumulated_time / static_cast<double>(run.iterations));
    }
}

TableReporter::Summary TableReporter::SummaryOf(const Figure& figure, const std::string& contestant) const {
    const auto found = times_.find(BenchmarkName(figure, contestant));
    if (found == times_.end()) return {};
    std::vector<double> sorted = found->second;
    std::ranges::sort(sorted);
    const double median = Quantile(sorted, 0.5);
    return {median, (Quantile(sorted, 0.75) - Quantile(sorted, 0.25)) / 2 / median};
}

void TableReporter::PrintFigure(const Figure& figure) const {
    const Summary ours = SummaryOf(figure, OursName);
    if (ours.median == 0) return;
    std::string name = figure.name;
    std::string time = TimeText(ours.median, ours.spread);
    for (const Yardstick& yardstick : figure.yardsticks) {
        const Summary its = SummaryOf(figure, yardstick.name);
        if (its.median == 0) continue;
        const double ratio = ours.median / its.median;
        std::printf(RowFormat, name.c_str(), time.c_str(), yardstick.name.c_str(),
                    TimeText(its.median, its.spread).c_str(), Printed("%.2fx", ratio).c_str(),
                    GoalText(yardstick.goal).c_str(), Verdict(ratio, yardstick.goal).c_str());
        name.clear();
        time.clear();
    }
}

void TableReporter::Finalize() {
    std::printf(RowFormat, "figure", "ours", "yardstick", "it takes", "ratio", "goal", "");
    for (const Figure& figure : figures_) PrintFigure(figure);
    for (const std::string& failure : failures_) std::printf("FAILED %s\n", failure.c_str());
    std::fflush(stdout);
}

}  // namespace bench
