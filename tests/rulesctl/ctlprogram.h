#pragma once

#include "host/json/reader.h"
#include "host/json/value.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

/// rulesctl as a program, run in a folder of its own, without a display.
class CtlProgram
{
public:
    struct Outcome {
        int status = -1;
        QByteArray output;
        QString complaints;
    };

    static kql::Json::Value parsed(const QByteArray& text)
    {
        kql::Json::Value document;
        kql::Json::Reader().parse(
            std::string_view(text.constData(), static_cast<std::size_t>(text.size())), document);
        return document;
    }

    Outcome run(const QStringList& arguments, const QByteArray& input = {}) const
    {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.remove("QT_QPA_PLATFORM");
        environment.remove("DISPLAY");
        process.setProcessEnvironment(environment);
        process.start(RULES_BIN_DIR "/rulesctl", arguments);
        process.write(input);
        process.closeWriteChannel();
        const bool hasEnded = process.waitForFinished(kTimeout);
        const bool isNormal = hasEnded && process.exitStatus() == QProcess::NormalExit;
        return {isNormal ? process.exitCode() : -1, process.readAllStandardOutput(),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    /// Writes a file into the folder; its path is the answer.
    QString file(const QString& name, const QByteArray& content) const
    {
        QFile written(path(name));
        if (!written.open(QIODevice::WriteOnly) || written.write(content) != content.size())
            qWarning("cannot write %s", qPrintable(name));
        return written.fileName();
    }
    QByteArray contentOf(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    static constexpr int kTimeout = 120000; // milliseconds

    QTemporaryDir m_folder;
};
