#include "bench/ratiotable.h"

#include "bench/verdicts.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

namespace
{

constexpr int kSmallest = 16; ///< part of the limit from which growth is measured
constexpr double kGrowthGoal = 1.3;

std::string nameOf(const BenchRow& row, const char* side, int size)
{
    return row.work + ", " + row.peer + "/" + side + "/" + std::to_string(size);
}

} // namespace

RatioTable::RatioTable(BenchRows rows) : m_rows(std::move(rows)) {}

void RatioTable::registerWork()
{
    for (const BenchRow& row : m_rows) {
        measure(nameOf(row, "ours", row.size), row.ours, row.size);
        measure(nameOf(row, "peer", row.size), row.theirs, row.size);
        if (row.limit == 0)
            continue;
        measure(nameOf(row, "ours", row.limit), row.ours, row.limit);
        measure(nameOf(row, "ours", row.limit / kSmallest), row.ours, row.limit / kSmallest);
    }
}

void RatioTable::measure(const std::string& name, const BenchRow::Work& work, int size)
{
    if (!m_seconds.emplace(name, std::vector<double>()).second)
        return;
    benchmark::RegisterBenchmark(name.c_str(), [work, size](benchmark::State& state) {
        work(state, size);
    })->UseRealTime();
}

bool RatioTable::ReportContext(const Context&)
{
    return true;
}

void RatioTable::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.error_occurred)
            std::fprintf(stderr, "%s: %s\n", run.run_name.function_name.c_str(),
                         run.error_message.c_str());
        else if (run.run_type == Run::RT_Iteration)
            m_seconds[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                            double(run.iterations));
    }
}

void RatioTable::print(Verdicts& verdicts) const
{
    std::puts("| Work | Size | Peer | Ours, us | Peer, us | Ratio | Goal | |\n"
              "|---|---|---|---|---|---|---|---|");
    for (const BenchRow& row : m_rows)
        printRatio(row, verdicts);
    std::puts("\n| Growth | From | To | Unit, us | Unit, us | A quadrupling | Goal | |\n"
              "|---|---|---|---|---|---|---|---|");
    for (const BenchRow& row : m_rows)
        printGrowth(row, verdicts);
}

double RatioTable::median(const std::string& name) const
{
    const auto found = m_seconds.find(name);
    if (found == m_seconds.end() || found->second.empty())
        return 0;
    std::vector<double> seconds = found->second;
    const auto middle = seconds.begin() + int(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    return *middle;
}

void RatioTable::printRatio(const BenchRow& row, Verdicts& verdicts) const
{
    const double ours = median(nameOf(row, "ours", row.size));
    const double peer = median(nameOf(row, "peer", row.size));
    if (ours <= 0 || peer <= 0)
        return;
    std::printf("| %s | %d | %s | %.2f | %.2f | %.3f | %.3g | %s |\n", row.work.c_str(), row.size,
                row.peer.c_str(), ours * 1e6, peer * 1e6, ours / peer, row.goal,
                verdicts.of(ours / peer, row.goal));
}

void RatioTable::printGrowth(const BenchRow& row, Verdicts& verdicts) const
{
    const int from = row.limit / kSmallest;
    const double small = median(nameOf(row, "ours", from)) / std::max(from, 1);
    const double large = median(nameOf(row, "ours", row.limit)) / std::max(row.limit, 1);
    if (row.limit == 0 || small <= 0 || large <= 0)
        return;
    // From a sixteenth to the limit is two quadruplings.
    const double growth = std::sqrt(large / small);
    std::printf("| %s | %d | %d | %.3f | %.3f | %.2f | %.1f | %s |\n", row.work.c_str(), from,
                row.limit, small * 1e6, large * 1e6, growth, kGrowthGoal,
                verdicts.of(growth, kGrowthGoal));
}
