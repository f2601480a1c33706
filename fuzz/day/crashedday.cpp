#include "fuzz/day/crashedday.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <random>

namespace
{

constexpr unsigned kMostActions = 40; ///< between two crashes, and some until work is kept
constexpr int kPatience = 120000;     // milliseconds

} // namespace

bool CrashedDay::play(int crashes)
{
    const QTemporaryDir folder;
    std::mt19937 random(m_seed);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i <= crashes; ++i) {
        const auto actions = i < crashes ? static_cast<int>(random() % kMostActions) + 1 : 0;
        if (!crash(folder, static_cast<unsigned>(random()), actions)) {
            m_report = QStringLiteral("crash %1 of seed %2: ").arg(i).arg(m_seed) + m_report;
            return false;
        }
    }
    m_report = QStringLiteral("%1: %2 crashes in %3 s, %4 restored, none with a difference")
                   .arg(m_example)
                   .arg(crashes)
                   .arg(timer.elapsed() / 1000)
                   .arg(m_restored);
    return true;
}

bool CrashedDay::crash(const QTemporaryDir& folder, unsigned seed, int actions)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--until-killed"), folder.path(), QStringLiteral("--seed"),
                   QString::number(seed), QStringLiteral("--actions"), QString::number(actions),
                   m_example});
    while (!process.canReadLine() && process.waitForReadyRead(kPatience)) {
    }
    const QByteArray said = process.readLine().trimmed();
    process.kill();
    process.waitForFinished();
    m_restored += said == kRestored ? 1 : 0;
    m_report = QString::fromUtf8(process.readAllStandardError());
    return said == kReady || said == kRestored;
}
