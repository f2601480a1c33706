#include "bench/memoryreport.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "bench/figurescene.h"
#include "bench/sampledocument.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <cstdio>
#include <malloc.h>

namespace
{

constexpr int kRules = 20000;
constexpr int kRulesOfOneLoad = 200;
constexpr int kLoads = 1000;

/// Bytes in use as the allocator counts them, with the freed blocks that it keeps for the thread.
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
    SampleDocument::liftLimits(parser);
    parser.parseTemplate(templateText);
    parser.readData(text);
    const double bytes = bytesInUse() - before;
    std::printf("Memory: %.0f bytes per rule loaded (%d), with its figure; %.2f times the text of "
                "%.0f bytes (goal: 6)\n",
                bytes / kRules, kRules, bytes / utf8.size(), double(utf8.size()) / kRules);
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

void printFigures()
{
    const auto figures = FigureScene::figures(kRules);
    const double before = bytesInUse();
    DrawScene scene;
    FigureScene::fill(scene, figures);
    const double bytes = bytesInUse() - before;
    double text = 0;
    for (const DrawItem* item : scene.getItemList(BaseDrawType::None, 0))
        text += textSize(item->getPoints());
    std::printf("Memory: %.0f bytes per figure of 6 points; %.2f times their text of %.0f bytes "
                "(goal: 6)\n",
                bytes / kRules, bytes / text, text / kRules);
}

void printGrowth()
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
    std::printf("Memory: %.0f bytes more after %d loads of %d rules than after two\n",
                bytesInUse() - second, kLoads, kRulesOfOneLoad);
}

} // namespace

void printMemoryReport()
{
    std::puts("");
    printRules();
    printFigures();
    printGrowth();
}
