#pragma once

#include "host/json/reader.h"
#include "host/json/value.h"
#include "tests/support/examplefiles.h"

#include <QProcess>
#include <QTemporaryDir>

/// The command line as a program, run in a folder of its own.
struct RulesctlProgram {
    enum Status { Clean, Differs, Unusable, Crashed };
    struct Outcome {
        int status = Crashed;
        QString out;
        QString said; ///< on standard error
    };

    /// With @p input on its standard input; @p output, a file, in place of its standard output.
    Outcome run(const QStringList& arguments, const QByteArray& input = {},
                const QString& output = {}) const
    {
        constexpr int kTimeout = 120000; // milliseconds
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.setProcessEnvironment(environment);
        if (!output.isEmpty())
            process.setStandardOutputFile(output);
        process.start(QStringLiteral(RULES_BIN_DIR "/rulesctl"), arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(kTimeout))
            return {Crashed, {}, "it does not end"};
        const bool ended = process.exitStatus() == QProcess::NormalExit;
        return {ended ? process.exitCode() : int(Crashed),
                QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    static QStringList withTemplate(const QString& command, const QString& example = "perimeter")
    {
        return {command, "--template", ExampleFiles::folder(example) + "template.json"};
    }
    /// Null where it is no JSON.
    static kql::Json::Value parsed(const QByteArray& text)
    {
        kql::Json::Value document;
        kql::Json::Reader().parse(QString::fromUtf8(text), document);
        return document;
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    /// Of a file in the folder.
    QByteArray contentOf(const QString& name) const { return ExampleFiles::contentOf(path(name)); }
    /// Writes a file into the folder; its path is the answer.
    QString file(const QString& name, const QByteArray& content) const
    {
        QFile written(QDir(folder.path()).absoluteFilePath(name));
        if (!written.open(QIODevice::WriteOnly) || written.write(content) != content.size())
            qWarning("cannot write %s", qPrintable(name));
        return written.fileName();
    }

    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};
