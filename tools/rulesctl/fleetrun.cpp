#include "tools/rulesctl/fleetrun.h"

#include "tools/rulesctl/output.h"

#include <QFuture>
#include <QMutex>
#include <QThreadPool>
#include <QVector>
#include <QWaitCondition>
#include <QtConcurrent>

#include <algorithm>
#include <map>
#include <utility>

namespace
{

/// Answers that are held for each thread while an earlier one is awaited.
constexpr int kAhead = 64;
constexpr int kBarWidth = 40;

} // namespace

/// Gives files out to threads and takes their answers back in order.
class FleetRun::Queue
{
public:
    Queue(int count, int most) : m_count(count), m_most(most) {}

    /// The next file's position; -1 when there is none. Waits while too many answers are held.
    int next()
    {
        QMutexLocker lock(&m_mutex);
        while (m_next < m_count && m_next >= m_taken + m_most)
            m_hasRoom.wait(&m_mutex);
        return m_next < m_count ? m_next++ : -1;
    }

    void put(int position, FileAnswer answer)
    {
        const QMutexLocker lock(&m_mutex);
        m_answers.emplace(position, std::move(answer));
        if (position == m_taken)
            m_hasAnswer.wakeOne();
    }

    /// Waits for the next answer in order.
    FileAnswer take()
    {
        QMutexLocker lock(&m_mutex);
        while (m_answers.empty() || m_answers.begin()->first != m_taken)
            m_hasAnswer.wait(&m_mutex);
        FileAnswer answer = std::move(m_answers.begin()->second);
        m_answers.erase(m_answers.begin());
        ++m_taken;
        m_hasRoom.wakeAll();
        return answer;
    }

private:
    const int m_count;
    const int m_most;
    QMutex m_mutex;
    QWaitCondition m_hasRoom;
    QWaitCondition m_hasAnswer;
    std::map<int, FileAnswer> m_answers; ///< by the file's position
    int m_next = 0;
    int m_taken = 0;
};

FleetRun::FleetRun(QStringList files, std::function<Work()> makeWork, Output& output)
    : m_files(std::move(files)),
      m_makeWork(std::move(makeWork)),
      m_output(output),
      m_showsProgress(m_files.size() > 1 && Complaint::isTerminal())
{
}

ExitStatus FleetRun::run()
{
    const int threads = std::min(QThread::idealThreadCount(), m_files.size());
    if (threads > 1) {
        runOnThreads(threads);
    } else {
        const Work work = m_makeWork();
        for (const QString& file : qAsConst(m_files))
            take(work(file));
    }
    if (count(ExitStatus::Unusable) > 0)
        return ExitStatus::Unusable;
    return count(ExitStatus::Differs) > 0 ? ExitStatus::Differs : ExitStatus::Clean;
}

void FleetRun::runOnThreads(int threads)
{
    Queue queue(m_files.size(), threads * kAhead);
    const auto workThrough = [this, &queue] {
        const Work work = m_makeWork();
        for (int position = queue.next(); position >= 0; position = queue.next())
            queue.put(position, work(m_files[position]));
    };
    QThreadPool pool;
    pool.setMaxThreadCount(threads);
    for (int i = 0; i < threads; ++i)
        QtConcurrent::run(&pool, workThrough);
    for (int i = 0; i < m_files.size(); ++i)
        take(queue.take());
    pool.waitForDone();
}

void FleetRun::take(const FileAnswer& answer)
{
    if (m_taken++ > 0 && !answer.output.isEmpty())
        m_output.write(m_separator);
    m_output.write(answer.output);
    ++m_counts[static_cast<int>(answer.status)];
    if (!answer.complaint.isEmpty())
        Complaint::say(m_showsProgress ? QStringLiteral("\r\033[K") + answer.complaint
                                       : answer.complaint);
    if (m_showsProgress)
        showProgress();
}

void FleetRun::tellSummary(const QStringList& words) const
{
    if (m_files.size() < 2)
        return;
    QStringList counts;
    for (int i = 0; i < words.size(); ++i)
        counts.append(QString::number(m_counts[i]) + QLatin1Char(' ') + words[i]);
    Complaint::say(QStringLiteral("%1 files: %2")
                       .arg(QString::number(m_files.size()), counts.join(QStringLiteral(", "))));
}

void FleetRun::showProgress()
{
    const int percent = static_cast<int>(qint64{100} * m_taken / m_files.size());
    if (percent == std::exchange(m_shownPercent, percent))
        return;
    const int done = kBarWidth * percent / 100;
    const QString bar = QString(done, QLatin1Char('#')).leftJustified(kBarWidth);
    const bool isLast = m_taken == m_files.size();
    Complaint::show(isLast
                        ? QStringLiteral("\r\033[K")
                        : QStringLiteral("\r[%1] %2 of %3")
                              .arg(bar, QString::number(m_taken), QString::number(m_files.size())));
}
