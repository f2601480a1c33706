#pragma once

#include "bench/benchrow.h"

#include <map>

class Verdicts;

/// Has the rows measured and prints how the medians compare, and how ours grow.
class RatioTable : public benchmark::BenchmarkReporter
{
public:
    explicit RatioTable(BenchRows rows);

    void registerWork();
    /// Rows that were not measured are left out.
    void print(Verdicts& verdicts) const;

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

private:
    /// Registers what is not registered yet.
    void measure(const std::string& name, const BenchRow::Work& work, int size);
    /// Seconds of one run; 0 when it was not measured.
    double median(const std::string& name) const;
    void printRatio(const BenchRow& row, Verdicts& verdicts) const;
    /// From a sixteenth of the limit to the limit; the time for one unit should stay the same.
    void printGrowth(const BenchRow& row, Verdicts& verdicts) const;

    BenchRows m_rows;
    std::map<std::string, std::vector<double>> m_seconds; ///< by the work's name
};
