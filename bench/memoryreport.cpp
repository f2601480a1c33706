#include "bench/memoryreport.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "bench/commandrun.h"
#include "bench/figurescene.h"
#include "bench/fleetfiles.h"
#include "bench/sampledocument.h"
#include "bench/verdicts.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <malloc.h>
#include <sys/stat.h>

namespace
{

constexpr int kRules = 3000;
constexpr double kGoal = 6; // times their text
constexpr int kRulesOfOneLoad = 200;
constexpr int kLoads = 1000;
constexpr int kFewDocuments = 1000;
constexpr int kManyDocuments = 100000;
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

/// Peak memory of rulesctl over few and many documents; each may take @p bytesEach more.
void printFleet(const char* of, double few, double many, double bytesEach, Verdicts& verdicts)
{
    constexpr double kMore = 1.1;
    const double goal = kMore * few + bytesEach * kManyDocuments;
    std::printf("| check of %d %s | %.0f kB | %.0f kB of %d | %.0f kB | %s |\n", kManyDocuments, of,
                many / 1024, few / 1024, kFewDocuments, goal / 1024, verdicts.of(many, goal));
}

QStringList checkWith(const QStringList& input)
{
    return QStringList{QStringLiteral("check"), QStringLiteral("--template"),
                       FleetFiles::templateFile()} +
           input;
}

void printLines(Verdicts& verdicts)
{
    const QByteArray line =
        R"({"id":1,"config":)" + FleetFiles::text(FleetFiles::Form::Compact) + "}\n";
    const auto peak = [&](int lines) {
        CommandRun run(checkWith({QStringLiteral("--jsonl")}), 1);
        run.feed(line, lines);
        const double bytes = run.peakBytes();
        return run.finish() == 0 ? bytes : 0;
    };
    printFleet("documents on standard input", peak(kFewDocuments), peak(kManyDocuments), 0,
               verdicts);
}

void printFiles(Verdicts& verdicts)
{
    constexpr double kName = 100;
    const auto peak = [](int count) {
        const FleetFiles files(FleetFiles::Form::Compact, count);
        // It comes to the last one, and waits there, when it has done all others.
        const QTemporaryDir folder;
        const QString last = folder.filePath(QStringLiteral("last.json"));
        ::mkfifo(qPrintable(last), 0600);
        CommandRun run(checkWith({QStringLiteral("--config"), files.folder(), last}), 1);
        QFile end(last);
        end.open(QIODevice::WriteOnly);
        const double bytes = run.peakBytes();
        end.write(FleetFiles::text(FleetFiles::Form::Compact));
        end.close();
        return run.finish() == 0 ? bytes : 0;
    };
    printFleet("files", peak(kFewDocuments), peak(kManyDocuments), kName, verdicts);
}

} // namespace

void printMemoryReport(Verdicts& verdicts)
{
    std::puts("\n| Memory | Each | Against | Goal | |\n|---|---|---|---|---|");
    printRules(verdicts);
    printFigures(verdicts);
    printGrowth(verdicts);
    printLines(verdicts);
    printFiles(verdicts);
}
