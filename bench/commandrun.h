#pragma once

#include <QByteArray>
#include <QStringList>
#include <sys/types.h>

/// A run of rulesctl whose output nobody reads.
class CommandRun
{
public:
    /// Starts it on @p cores.
    CommandRun(const QStringList& arguments, int cores);
    ~CommandRun();
    CommandRun(const CommandRun&) = delete;
    CommandRun& operator=(const CommandRun&) = delete;

    /// Writes to its standard input.
    void feed(const QByteArray& line, int times) const;
    /// The most memory that it had at once so far, as long as it runs.
    double peakBytes() const;
    /// Ends its input and waits for it; its exit status, -1 when it did not come to one.
    int finish();

private:
    pid_t m_process = -1;
    int m_input = -1;
};
