#include "workbench/logkeeper.h"

#include <QDateTime>

#include <mutex>

namespace
{

constexpr int kMostLines = 1000;

QtMessageHandler g_previousHandler = nullptr;

struct Kept {
    std::mutex mutex;
    QStringList lines;
};

/// Never destroyed: threads may log while the process is already ending.
Kept& kept()
{
    static auto* const lines = new Kept;
    return *lines;
}

void keep(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    LogKeeper::note(qFormatLogMessage(type, context, text));
    g_previousHandler(type, context, text);
}

} // namespace

void LogKeeper::start()
{
    g_previousHandler = qInstallMessageHandler(&keep);
}

void LogKeeper::note(const QString& line)
{
    const QString now = QDateTime::currentDateTime().toString(Qt::ISODateWithMs);
    const std::lock_guard<std::mutex> lock(kept().mutex);
    kept().lines.append(now + QLatin1Char(' ') + line);
    if (kept().lines.size() > kMostLines)
        kept().lines.removeFirst();
}

QStringList LogKeeper::lines()
{
    const std::lock_guard<std::mutex> lock(kept().mutex);
    return kept().lines;
}
