#include "bench/benchrow.h"
#include "host/sample/samplecamerasource.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryFile>

namespace
{

const char* const kBin = RULES_BIN_DIR;
const char* const kSample = RULES_SOURCE_DIR "/examples/perimeter";
/// Plain widgets that make as many as the workbench has with the sample open: 175 of them.
constexpr int kWidgets = 173;

void run(benchmark::State& state, const QString& program, const QStringList& arguments)
{
    for (auto _ : state) {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(QDir(QString::fromLocal8Bit(kBin)).filePath(program), arguments);
        if (!process.waitForFinished(20000) || process.exitStatus() != QProcess::NormalExit)
            state.SkipWithError("the program did not run");
    }
}

/// Until the first picture is painted; then the program ends.
void startWorkbench(benchmark::State& state, int)
{
    QTemporaryFile session;
    if (!session.open())
        return state.SkipWithError("no session file");
    session.write("{\"do\":\"wait\",\"picture\":true}\n");
    session.close();
    const QDir sample(QString::fromLocal8Bit(kSample));
    run(state, QStringLiteral("rules-workbench"),
        {QStringLiteral("--template"), sample.filePath(QStringLiteral("template.json")),
         QStringLiteral("--config"), sample.filePath(QStringLiteral("config.json")),
         QStringLiteral("--replay"), session.fileName()});
}

void startBareWindow(benchmark::State& state, int)
{
    // What the workbench shows, as a camera hands over its snapshots.
    QTemporaryFile picture(QDir::temp().filePath(QStringLiteral("XXXXXX.jpg")));
    if (!picture.open() || !UICommonMdl::SampleCameraSource::paintFrame(0).save(&picture, "JPG"))
        return state.SkipWithError("no picture file");
    picture.close();
    run(state, QStringLiteral("rules-bare-window"),
        {QString::number(kWidgets), picture.fileName()});
}

} // namespace

void addStartRow(BenchRows& rows)
{
    rows.push_back({"Start", "a bare window with as many widgets and the picture", 1.3, 1, 0,
                    startWorkbench, startBareWindow});
}
