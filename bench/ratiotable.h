#pragma once

#include "bench/benchrow.h"

#include <map>

/// Has the rows measured and prints how the medians compare.
class RatioTable : public benchmark::BenchmarkReporter
{
public:
    explicit RatioTable(BenchRows rows);

    void registerWork() const;
    /// Rows that were not measured are left out.
    void print() const;

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

private:
    /// Seconds of one run; 0 when it was not measured.
    double median(const std::string& name) const;
    void printRow(std::size_t index) const;

    BenchRows m_rows;
    std::map<std::string, std::vector<double>> m_seconds; ///< by the work's name
};
