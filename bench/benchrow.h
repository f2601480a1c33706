#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <string>
#include <vector>

/// One line of the table: the same work done by the module and by its peer.
struct BenchRow {
    using Work = std::function<void(benchmark::State& state, int size)>;

    std::string work;
    std::string peer;
    double goal; ///< the module's time over the peer's, at most
    int size;    ///< things worked on: rules, figures, rows
    int limit;   ///< the most of them that is accepted; 0 where there is nothing to grow
    Work ours;
    Work theirs;
};

using BenchRows = std::vector<BenchRow>;

void addDocumentRows(BenchRows& rows);
void addPaintRows(BenchRows& rows);
void addMouseRow(BenchRows& rows);
void addPanelRows(BenchRows& rows);
void addOpenRow(BenchRows& rows);
void addStartRow(BenchRows& rows);
void addFleetRows(BenchRows& rows);
void addReportRow(BenchRows& rows);
