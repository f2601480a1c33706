#include "bench/limitreport.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "draw/drawscene.h"
#include "host/gdiplus.h"
#include "host/json/reader.h"
#include "host/json/value.h"
#include "tests/support/absurddocuments.h"

#include <QFile>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <ctime>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

using kql::Json::Value;

namespace
{

constexpr int kCount = 500; // twice as many are as much as is taken

/// What one pair of documents costs, in seconds of the processor and bytes.
struct Cost {
    double textBytes = 0;
    double parse = 0;
    double react = 0;
    double paint = 0;
    double parseBytes = 0;
    double reactBytes = 0;
};

double seconds(const std::function<void()>& work)
{
    const std::clock_t start = std::clock();
    work();
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

/// A line of the process' status, in bytes.
double statusBytes(const QByteArray& name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(name))
            return line.mid(name.size()).simplified().split(' ').first().toDouble() * 1024;
    }
    return 0;
}

/// The most that @p work has in use beyond what is in use before it.
double peakBytes(const std::function<void()>& work)
{
    QFile peak(QStringLiteral("/proc/self/clear_refs"));
    if (peak.open(QIODevice::WriteOnly))
        peak.write("5"); // the peak starts anew
    peak.close();
    const double before = statusBytes("VmRSS:");
    work();
    return statusBytes("VmHWM:") - before;
}

/// Reads the documents, checks and writes.
void react(RuleParser& parser, const QString& description, const QString& config)
{
    parser.parseTemplate(description);
    parser.readData(config);
    for (const auto& scene : parser.getAllData()) {
        QString message;
        scene->checkData(message);
    }
    QString written;
    parser.writeData(written);
}

void paint(const RuleParser& parser)
{
    QImage picture(640, 360, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    Gdiplus::Graphics graphics(&painter);
    for (const auto& scene : parser.getAllData()) {
        scene->getDrawScene()->setCanvasSize(640, 360);
        scene->getDrawScene()->draw(&graphics);
    }
}

Cost measure(const AbsurdDocuments::Pair& pair)
{
    const QString description = QString::fromUtf8(pair.description);
    const QString config = QString::fromUtf8(pair.config);
    Cost cost;
    cost.textBytes = pair.description.size() + pair.config.size();
    cost.parseBytes = peakBytes([&] {
        cost.parse = seconds([&] {
            Value first;
            Value second;
            kql::Json::Reader().parse(description, first);
            kql::Json::Reader().parse(config, second);
        });
    });
    RuleParser parser;
    cost.reactBytes =
        peakBytes([&] { cost.react = seconds([&] { react(parser, description, config); }); });
    cost.paint = seconds([&] { paint(parser); });
    return cost;
}

/// In a process of its own, whose memory no other measurement has touched.
Cost measuredApart(const AbsurdDocuments::Pair& pair)
{
    Cost cost;
    int ends[2] = {};
    if (pipe(ends) != 0)
        return cost;
    if (fork() == 0) {
        cost = measure(pair);
        const bool sent = write(ends[1], &cost, sizeof cost) == ssize_t(sizeof cost);
        _exit(sent ? 0 : 1);
    }
    if (read(ends[0], &cost, sizeof cost) != ssize_t(sizeof cost))
        std::puts("A measurement failed.");
    wait(nullptr);
    close(ends[0]);
    close(ends[1]);
    return cost;
}

} // namespace

void printLimitReport()
{
    const auto once = AbsurdDocuments::crowded(kCount);
    const auto twice = AbsurdDocuments::crowded(2 * kCount);
    std::printf(
        "\nAbsurd documents: %d of one thing, of points sixty times as many. The reaction is "
        "to read, check and write.\n%-16s %9s %9s %14s %12s %14s %14s %9s\n",
        kCount, "", "text", "parse", "reaction", "of the parse", "twice as many", "memory",
        "paint");
    for (std::size_t i = 0; i < once.size(); ++i) {
        const Cost cost = measuredApart(once[i]);
        const Cost more = measuredApart(twice[i]);
        std::printf("%-16s %6.0f kB %6.1f ms %11.1f ms %11.1fx %13.1fx %6.1fx text %6.1f ms\n",
                    once[i].name.constData(), cost.textBytes / 1000, cost.parse * 1000,
                    cost.react * 1000, cost.react / cost.parse, more.react / cost.react,
                    cost.reactBytes / cost.textBytes, cost.paint * 1000);
    }
}
