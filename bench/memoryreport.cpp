#include "bench/memoryreport.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "bench/figurescene.h"
#include "bench/sampledocument.h"
#include "draw/drawscene.h"

#include <cstdio>
#include <malloc.h>

namespace
{

constexpr int kRules = 20000;
constexpr int kRulesOfOneLoad = 200;
constexpr int kLoads = 1000;

/// Bytes in use, as the allocator counts them.
double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

void printRules()
{
    const QString templateText = SampleDocument::ruleTemplate();
    const QByteArray utf8 = SampleDocument::rules(kRules);
    const QString text = QString::fromUtf8(utf8);
    const double before = bytesInUse();
    RuleParser parser;
    parser.parseTemplate(templateText);
    parser.readData(text);
    const double bytes = bytesInUse() - before;
    std::printf("Memory: %.0f bytes per rule loaded (%d), with its figure; %.2f times the text of "
                "%.0f bytes (goal: 6)\n",
                bytes / kRules, kRules, bytes / utf8.size(), double(utf8.size()) / kRules);
}

void printFigures()
{
    const auto figures = FigureScene::figures(kRules);
    const double before = bytesInUse();
    DrawScene scene;
    FigureScene::fill(scene, figures);
    std::printf("Memory: %.0f bytes per figure of 6 points\n", (bytesInUse() - before) / kRules);
}

void printGrowth()
{
    const QString templateText = SampleDocument::ruleTemplate();
    const QString text = QString::fromUtf8(SampleDocument::rules(kRulesOfOneLoad));
    double first = 0;
    for (int load = 0; load < kLoads; ++load) {
        {
            RuleParser parser;
            parser.parseTemplate(templateText);
            parser.readData(text);
        }
        if (load == 0)
            first = bytesInUse();
    }
    std::printf("Memory: %.0f bytes more after %d loads of %d rules than after the first\n",
                bytesInUse() - first, kLoads, kRulesOfOneLoad);
}

} // namespace

void printMemoryReport()
{
    std::puts("");
    printRules();
    printFigures();
    printGrowth();
}
