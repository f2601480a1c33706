#include "bench/commandrun.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{

/// Becomes rulesctl; returns where that fails.
void become(const std::vector<QByteArray>& words, int cores, int input)
{
    cpu_set_t allowed;
    CPU_ZERO(&allowed);
    for (int i = 0; i < cores; ++i)
        CPU_SET(i, &allowed);
    ::sched_setaffinity(0, sizeof allowed, &allowed);
    const int nothing = ::open("/dev/null", O_RDWR);
    ::dup2(input, STDIN_FILENO);
    ::dup2(nothing, STDOUT_FILENO);
    ::dup2(nothing, STDERR_FILENO);
    std::vector<char*> arguments;
    for (const QByteArray& word : words)
        arguments.push_back(const_cast<char*>(word.constData()));
    arguments.push_back(nullptr);
    ::execv(arguments.front(), arguments.data());
}

} // namespace

CommandRun::CommandRun(const QStringList& arguments, int cores)
{
    std::vector<QByteArray> words{RULES_BIN_DIR "/rulesctl"};
    for (const QString& argument : arguments)
        words.push_back(argument.toUtf8());
    int ends[2] = {};
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return;
    m_input = ends[1];
    m_process = ::fork();
    if (m_process == 0) {
        become(words, cores, ends[0]);
        ::_exit(127);
    }
    ::close(ends[0]);
}

CommandRun::~CommandRun()
{
    finish();
}

void CommandRun::feed(const QByteArray& line, int times) const
{
    for (int i = 0; i < times; ++i) {
        for (qint64 written = 0; written < line.size();) {
            const auto more = ::write(m_input, line.constData() + written,
                                      static_cast<std::size_t>(line.size() - written));
            if (more <= 0 && errno != EINTR)
                return;
            written += more;
        }
    }
}

double CommandRun::peakBytes() const
{
    // What the system says of a process that has ended counts the memory of the one that forked it.
    QFile status(QStringLiteral("/proc/%1/status").arg(m_process));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return 1024 * line.mid(6).simplified().split(' ').first().toDouble();
    }
    return 0;
}

int CommandRun::finish()
{
    if (m_process < 0)
        return -1;
    ::close(m_input);
    int status = 0;
    const bool hasEnded = ::waitpid(m_process, &status, 0) == m_process && WIFEXITED(status);
    m_process = -1;
    return hasEnded ? WEXITSTATUS(status) : -1;
}
