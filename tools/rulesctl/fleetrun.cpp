#include "tools/rulesctl/fleetrun.h"

#include "tools/rulesctl/output.h"

#include <QFuture>
#include <QThreadPool>
#include <QtConcurrent>

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>
#include <tuple>
#include <utility>
#include <vector>
#ifdef Q_OS_LINUX
#include <sched.h>
#endif

namespace
{

/// Files that a thread takes at once, and so many times as many answers are held for each thread
/// while earlier ones are awaited.
constexpr int kMostAtOnce = 16;
constexpr int kAhead = 4;
constexpr int kBarWidth = 40;
const auto kClearLine = QStringLiteral("\r\033[K");

/// Those that this process may use.
int coreCount()
{
#if defined(Q_OS_LINUX) && QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // which asks that itself
    cpu_set_t cores;
    if (::sched_getaffinity(0, sizeof cores, &cores) == 0)
        return CPU_COUNT(&cores);
#endif
    return QThread::idealThreadCount();
}

void runIn(QThreadPool& pool, const std::function<void()>& work)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QtConcurrent::run(&pool, work);
#else
    std::ignore = QtConcurrent::run(&pool, work);
#endif
}

} // namespace

/// Gives files out to threads, some at once, and takes their answers back in order.
class FleetRun::Queue
{
public:
    using Answers = std::vector<FileAnswer>;

    Queue(int fileCount, int threads)
        : m_fileCount(fileCount),
          m_atOnce(std::clamp(fileCount / (threads * kAhead), 1, kMostAtOnce)),
          m_most(threads * kAhead)
    {
    }

    int partCount() const { return (m_fileCount + m_atOnce - 1) / m_atOnce; }
    int begin(int part) const { return part * m_atOnce; }
    int end(int part) const { return std::min(m_fileCount, (part + 1) * m_atOnce); }

    /// The next part; -1 when there is none. Waits while too many answers are held.
    int next()
    {
        std::unique_lock lock(m_mutex);
        m_hasRoom.wait(lock, [this] { return m_next >= partCount() || m_next < m_taken + m_most; });
        return m_next < partCount() ? m_next++ : -1;
    }

    void put(int part, Answers answers)
    {
        const std::lock_guard lock(m_mutex);
        m_answers.emplace(part, std::move(answers));
        if (part == m_taken)
            m_hasAnswers.notify_one();
    }

    /// Waits for the answers of the next part in order.
    Answers take()
    {
        std::unique_lock lock(m_mutex);
        m_hasAnswers.wait(
            lock, [this] { return !m_answers.empty() && m_answers.begin()->first == m_taken; });
        Answers answers = std::move(m_answers.begin()->second);
        m_answers.erase(m_answers.begin());
        ++m_taken;
        m_hasRoom.notify_all();
        return answers;
    }
    /// A thread has let go of all that it had.
    void leave()
    {
        const std::lock_guard lock(m_mutex);
        ++m_left;
        m_hasAnswers.notify_all();
    }
    void awaitLeft(int threads)
    {
        std::unique_lock lock(m_mutex);
        m_hasAnswers.wait(lock, [this, threads] { return m_left == threads; });
    }

private:
    const int m_fileCount;
    const int m_atOnce;
    const int m_most;
    // Of the standard library: the sanitizer for threads does not see into Qt's.
    std::mutex m_mutex;
    std::condition_variable m_hasRoom;
    std::condition_variable m_hasAnswers;
    std::map<int, Answers> m_answers; ///< by part
    int m_next = 0;
    int m_taken = 0;
    int m_left = 0; ///< threads
};

FleetRun::FleetRun(FileList files, std::function<Work()> makeWork, Output& output)
    : m_files(std::move(files)),
      m_makeWork(std::move(makeWork)),
      m_output(output),
      m_showsProgress(m_files.size() > 1 && Complaint::isTerminal())
{
}

ExitStatus FleetRun::run()
{
    const int threads = std::min(coreCount(), m_files.size());
    if (threads > 1) {
        runOnThreads(threads);
    } else {
        const Work work = m_makeWork();
        for (int i = 0; i < m_files.size(); ++i)
            take(work(m_files.at(i)));
    }
    if (count(ExitStatus::Unusable) > 0)
        return ExitStatus::Unusable;
    return count(ExitStatus::Differs) > 0 ? ExitStatus::Differs : ExitStatus::Clean;
}

void FleetRun::runOnThreads(int threads)
{
    Queue queue(m_files.size(), threads);
    const auto workThrough = [this, &queue] {
        const Work work = m_makeWork();
        for (int part = queue.next(); part >= 0; part = queue.next()) {
            Queue::Answers answers;
            for (int i = queue.begin(part); i < queue.end(part); ++i)
                answers.push_back(work(m_files.at(i)));
            queue.put(part, std::move(answers));
        }
    };
    const auto workAndLeave = [&workThrough, &queue] {
        workThrough();
        queue.leave();
    };
    QThreadPool pool;
    pool.setMaxThreadCount(threads);
    for (int i = 0; i < threads; ++i)
        runIn(pool, workAndLeave);
    for (int part = 0; part < queue.partCount(); ++part) {
        for (const FileAnswer& answer : queue.take())
            take(answer);
    }
    queue.awaitLeft(threads);
    pool.waitForDone();
}

void FleetRun::take(const FileAnswer& answer)
{
    if (m_showsProgress && (!answer.complaint.isEmpty() || m_output.isTerminal()))
        hideProgress();
    if (m_taken++ > 0 && !answer.output.isEmpty())
        m_output.write(m_separator);
    m_output.write(answer.output);
    ++m_counts[static_cast<int>(answer.status)];
    if (!answer.complaint.isEmpty()) {
        m_output.flush(); // so that both are in order where they go to one log
        Complaint::say(answer.complaint);
    }
    if (m_showsProgress)
        showProgress();
}

void FleetRun::tellSummary(const QStringList& words) const
{
    if (m_files.size() < 2)
        return;
    m_output.flush();
    QStringList counts;
    for (int i = 0; i < words.size(); ++i)
        counts.append(QString::number(m_counts[i]) + QLatin1Char(' ') + words[i]);
    Complaint::say(QStringLiteral("%1 files: %2")
                       .arg(QString::number(m_files.size()), counts.join(QStringLiteral(", "))));
}

/// For what is to stand in its line.
void FleetRun::hideProgress()
{
    if (std::exchange(m_shownPercent, kNoBar) != kNoBar)
        Complaint::show(kClearLine);
}

void FleetRun::showProgress()
{
    const int percent = static_cast<int>(qint64{100} * m_taken / m_files.size());
    if (percent == std::exchange(m_shownPercent, percent))
        return;
    if (m_output.isTerminal())
        m_output.flush();
    const int done = kBarWidth * percent / 100;
    const QString bar = QString(done, QLatin1Char('#')).leftJustified(kBarWidth);
    const bool isLast = m_taken == m_files.size();
    Complaint::show(isLast
                        ? kClearLine
                        : QStringLiteral("\r[%1] %2 of %3")
                              .arg(bar, QString::number(m_taken), QString::number(m_files.size())));
}
