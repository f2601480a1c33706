#pragma once

#include "tools/rulesctl/documents/filelist.h"
#include "tools/rulesctl/exitstatus.h"

#include <QByteArray>
#include <QStringList>
#include <functional>

class Output;

/// What came of one file.
struct FileAnswer {
    QByteArray output; ///< for standard output, with its line's end
    QString complaint; ///< for standard error; empty for none
    ExitStatus status = ExitStatus::Clean;
};

/**
 * Does the same with many files on all cores, and writes what came of them in the order given.
 * While it waits for one it holds the answers of a few others, not of all. On a terminal standard
 * error shows how far it is.
 */
class FleetRun
{
public:
    using Work = std::function<FileAnswer(const QString& file)>;

    /// @p makeWork is called once for each thread, on it.
    FleetRun(FileList files, std::function<Work()> makeWork, Output& output);

    /// What stands between two answers.
    void setSeparator(const QByteArray& separator) { m_separator = separator; }
    /// Goes through all files, also when output cannot be written; the worst status.
    ExitStatus run();
    /// How many files had that status.
    int count(ExitStatus status) const { return m_counts[static_cast<int>(status)]; }
    /// Says on standard error how many files were @p words, of the three statuses; of one file
    /// nothing.
    void tellSummary(const QStringList& words) const;

private:
    class Queue;

    void runOnThreads(int threads);
    void take(const FileAnswer& answer);
    void hideProgress();
    void showProgress();

    FileList m_files;
    std::function<Work()> m_makeWork;
    Output& m_output;
    QByteArray m_separator;
    int m_counts[3] = {0, 0, 0};
    int m_taken = 0;
    static constexpr int kNoBar = -1;
    int m_shownPercent = kNoBar;
    bool m_showsProgress;
};
