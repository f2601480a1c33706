#include "bench/memoryreport.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "bench/figurescene.h"
#include "bench/sampledocument.h"
#include "bench/verdicts.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <cstdio>
#include <malloc.h>

namespace
{

constexpr int kRules = 3000;
constexpr double kGoal = 6; // times their text
constexpr int kRulesOfOneLoad = 200;
constexpr int kLoads = 1000;
/// Freed blocks that the allocator keeps for the thread come and go in between.
constexpr double kKept = 16384;

/// Bytes in use as the allocator counts them, with the freed blocks that it keeps for the thread.
double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

void printRules(Verdicts& verdicts)
{
    const QString templateText = SampleDocument::ruleTemplate();
    const QByteArray utf8 = SampleDocument::rules(kRules);
    const QString text = QString::fromUtf8(utf8);
    const double before = bytesInUse();
    RuleParser parser;
    parser.parseTemplate(templateText);
    parser.readData(text);
    const double bytes = bytesInUse() - before;
    const double times = bytes / utf8.size();
    std::printf(
        "| a rule loaded, with its figure, of %d | %.0f bytes | %.2f times its %.0f bytes of "
        "text | %.0f times | %s |\n",
        kRules, bytes / kRules, times, double(utf8.size()) / kRules, kGoal,
        verdicts.of(times, kGoal));
}

/// Bytes of points in a document without white space.
int textSize(const QVector<QPoint>& points)
{
    constexpr int kPunctuation = 4; // [,],
    int bytes = 1;
    for (const QPoint& point : points)
        bytes += kPunctuation + QByteArray::number(point.x()).size() +
                 QByteArray::number(point.y()).size();
    return bytes;
}

void printFigures(Verdicts& verdicts)
{
    const auto figures = FigureScene::figures(kRules);
    const double before = bytesInUse();
    DrawScene scene;
    FigureScene::fill(scene, figures);
    const double bytes = bytesInUse() - before;
    double text = 0;
    for (const DrawItem* item : scene.getItemList(BaseDrawType::None, 0))
        text += textSize(item->getPoints());
    std::printf("| a figure of 6 points, of %d | %.0f bytes | %.2f times its %.0f bytes of text | "
                "%.0f times | %s |\n",
                kRules, bytes / kRules, bytes / text, text / kRules, kGoal,
                verdicts.of(bytes / text, kGoal));
}

void printGrowth(Verdicts& verdicts)
{
    const QString templateText = SampleDocument::ruleTemplate();
    const QString text = QString::fromUtf8(SampleDocument::rules(kRulesOfOneLoad));
    double second = 0;
    for (int load = 0; load < kLoads; ++load) {
        {
            RuleParser parser;
            parser.parseTemplate(templateText);
            parser.readData(text);
        }
        if (load == 1)
            second = bytesInUse();
    }
    const double more = bytesInUse() - second;
    std::printf("| growth from 2 to %d loads of %d rules | %.0f bytes | | %.0f bytes | %s |\n",
                kLoads, kRulesOfOneLoad, more, kKept, verdicts.of(more, kKept));
}

} // namespace

void printMemoryReport(Verdicts& verdicts)
{
    std::puts("\n| Memory | Each | Against | Goal | |\n|---|---|---|---|---|");
    printRules(verdicts);
    printFigures(verdicts);
    printGrowth(verdicts);
}
