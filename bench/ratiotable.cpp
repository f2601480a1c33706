#include "bench/ratiotable.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace
{

std::string nameOf(std::size_t index, const BenchRow& row, const char* side, int size)
{
    return std::to_string(index + 1) + " " + row.work + "/" + side + "/" + std::to_string(size);
}

void measure(const std::string& name, const BenchRow::Work& work, int size)
{
    benchmark::RegisterBenchmark(name.c_str(), [work, size](benchmark::State& state) {
        work(state, size);
    })->UseRealTime();
}

} // namespace

RatioTable::RatioTable(BenchRows rows) : m_rows(std::move(rows)) {}

void RatioTable::registerWork() const
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const BenchRow& row = m_rows[i];
        measure(nameOf(i, row, "ours", row.size), row.ours, row.size);
        measure(nameOf(i, row, "peer", row.size), row.theirs, row.size);
        if (!row.scales)
            continue;
        measure(nameOf(i, row, "ours", row.size / 4), row.ours, row.size / 4);
        measure(nameOf(i, row, "ours", row.size * 4), row.ours, row.size * 4);
    }
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

void RatioTable::print() const
{
    std::puts("| Work | Ours | Peer | Ours, us | Peer, us | Ratio | Goal | | Growth |\n"
              "|---|---|---|---|---|---|---|---|---|");
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        printRow(i);
    std::puts("\nGrowth: time for a unit of work at 4 times the size over that at a quarter; "
              "at most 1.3.");
}

double RatioTable::median(const std::string& name) const
{
    const auto found = m_seconds.find(name);
    if (found == m_seconds.end())
        return 0;
    std::vector<double> seconds = found->second;
    const auto middle = seconds.begin() + int(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    return *middle;
}

void RatioTable::printRow(std::size_t index) const
{
    const BenchRow& row = m_rows[index];
    const double ours = median(nameOf(index, row, "ours", row.size));
    const double peer = median(nameOf(index, row, "peer", row.size));
    if (ours <= 0 || peer <= 0)
        return;
    const double ratio = ours / peer;
    std::printf("| %s | %d | %s | %.2f | %.2f | %.3f | %.3g | %s |", row.work.c_str(), row.size,
                row.peer.c_str(), ours * 1e6, peer * 1e6, ratio, row.goal,
                ratio <= row.goal ? "met" : "missed");
    const double small = median(nameOf(index, row, "ours", row.size / 4));
    const double large = median(nameOf(index, row, "ours", row.size * 4));
    if (small > 0 && large > 0)
        std::printf(" %.2f |\n", large / small / 16);
    else
        std::puts(" |");
}
