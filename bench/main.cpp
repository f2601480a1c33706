#include "bench/benchrow.h"
#include "bench/limitreport.h"
#include "bench/memoryreport.h"
#include "bench/ratiotable.h"
#include "bench/verdicts.h"
#include "plugin/modulelifetime.h"

#include <QApplication>
#include <algorithm>
#include <cstring>
#include <vector>

namespace
{

/// Repetitions of all works in random order, so that a machine that slows down does so for both.
/// Arguments of the caller come after these and win.
std::vector<char*> withDefaults(int argc, char* argv[])
{
    static char interleaving[] = "--benchmark_enable_random_interleaving=true";
    static char repetitions[] = "--benchmark_repetitions=9";
    static char minimumTime[] = "--benchmark_min_time=0.1";
    std::vector<char*> arguments{argv[0], interleaving, repetitions, minimumTime};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    return arguments;
}

/// Whether @p flag was given; it is no argument of the library's then.
bool takeFlag(std::vector<char*>& arguments, const char* flag)
{
    const auto found = std::find_if(arguments.begin(), arguments.end(),
                                    [flag](const char* a) { return std::strcmp(a, flag) == 0; });
    if (found == arguments.end())
        return false;
    arguments.erase(found);
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    IntelligentRulesUI::startModule(); // with its style sheet
    std::vector<char*> arguments = withDefaults(argc, argv);
    const bool isCheck = takeFlag(arguments, "--check");
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;

    BenchRows rows;
    addDocumentRows(rows);
    addPaintRows(rows);
    addMouseRow(rows);
    addPanelRows(rows);
    addOpenRow(rows);
    addStartRow(rows);
    addFleetRows(rows);
    addReportRow(rows);
    RatioTable table(rows);
    table.registerWork();
    benchmark::RunSpecifiedBenchmarks(&table);
    Verdicts verdicts;
    table.print(verdicts);
    printMemoryReport(verdicts);
    printLimitReport();
    IntelligentRulesUI::endModule();
    return isCheck && verdicts.missed() > 0 ? 1 : 0;
}
