#pragma once

#include "tests/support/examplefiles.h"
#include "tests/support/workbenchfiles.h"

#include <QProcess>

/// The workbench as a program, run in a folder of its own.
class WorkbenchProgram
{
public:
    enum Status { SavedOrClosed, LeftWithoutSaving, Unusable, StepFailed, Crashed };
    struct Outcome {
        int status = Crashed;
        QString said;
    };

    static QStringList documents(const QString& folder = ExampleFiles::folder(),
                                 const QString& configuration = "config.json")
    {
        return {"--template", folder + "template.json", "--config", folder + configuration};
    }

    /// Runs it; once more where not the program but the sanitizer failed, as its search for leaks
    /// now and then does. A leak that was found is no such failure.
    Outcome run(const QStringList& arguments) const
    {
        const Outcome outcome = runOnce(arguments);
        const bool isJudged =
            !outcome.said.contains("LeakSanitizer has encountered a fatal error") ||
            outcome.said.contains("ERROR: ");
        return isJudged ? outcome : runOnce(arguments);
    }

    /// A session with the documents of the example.
    Outcome replay(const QString& session, const QStringList& more = {}) const
    {
        return run(documents() + more + QStringList{"--replay", session});
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    /// Writes a file into the folder; its path is the answer.
    QString file(const char* name, const QByteArray& content) const
    {
        return WorkbenchFiles::write(m_folder, name, content);
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QString programs = RULES_BIN_DIR; ///< the folder it is started from

private:
    static constexpr int kTimeout = 120000; // milliseconds

    Outcome runOnce(const QStringList& arguments) const
    {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(programs + "/rules-workbench", arguments);
        if (!process.waitForFinished(kTimeout))
            return {Crashed, "it does not end"};
        const bool ended = process.exitStatus() == QProcess::NormalExit;
        return {ended ? process.exitCode() : int(Crashed), QString::fromUtf8(process.readAll())};
    }

    QTemporaryDir m_folder;
};
