#pragma once

#include <QString>

class QTemporaryDir;

/// An operator's day on one example in a workbench that is killed again and again, each time in
/// another process that goes on with what the one before left behind.
class CrashedDay
{
public:
    /// What a process says on its standard output when it may be killed: whether it had begun by
    /// restoring something.
    static constexpr char kReady[] = "ready";
    static constexpr char kRestored[] = "ready, restored";

    CrashedDay(const QString& example, unsigned seed) : m_example(example), m_seed(seed) {}

    /// Crashes that often, and once more after nothing was done; false when what was restored
    /// differed from what was there, or could not be restored. report() says it all.
    bool play(int crashes);
    const QString& report() const { return m_report; }

private:
    bool crash(const QTemporaryDir& folder, unsigned seed, int actions);

    QString m_example;
    unsigned m_seed;
    QString m_report;
    int m_restored = 0;
};
