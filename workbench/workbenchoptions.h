#pragma once

#include <QMap>
#include <QStringList>
#include <optional>

/// What the workbench was asked to do: documents to load, the parameter block, session files.
struct WorkbenchOptions {
    /// Name of the channel that shows the sample camera, in the language of the program.
    static QString sampleName();

    QString templateFile;
    QString configFile;
    QString source; ///< address or file of the loaded channel's picture; empty: its own
    QMap<QString, QString> channelSources; ///< by channel id
    QString channelId = QStringLiteral("1");
    QString channelName = sampleName();
    QString algorithmId = QStringLiteral("sample");
    int algorithmType = 0;
    QString algorithmCode;
    bool selectionMode = false;
    /// As given; the presence of the member counts, whatever its value.
    std::optional<bool> editable;
    QString pluginFile; ///< empty: the one that comes with the program
    QString resultFile;
    QString screenshotFile;
    QString replayFile;
    QString recordFile;
    QString theme;    ///< "light" or "dark"; empty: the desktop's colours
    QString language; ///< as a locale's name; empty: the desktop's

    /// Whether a script runs the workbench, for a replay or a picture of the window: nobody is
    /// asked anything then, and nothing is read of what earlier runs kept, nor kept for later ones.
    bool isScripted() const { return !replayFile.isEmpty() || !screenshotFile.isEmpty(); }
    /// The files that are read: documents, session, pictures, plug-in; addresses are among them.
    QStringList inputs() const;
    /// Which of inputs() writing @p output would replace; empty when there is none.
    QString replacedInput(const QString& output) const;
    /// The line that says which output cannot be where it should: its place is no regular file, or
    /// that of another file of this run. Empty when there is none.
    QString outputFault() const;
    /// The JSON text of the parameter block that loads the channel's rules, documents read from
    /// their files, whose digest as they were read comes in @p digest unless that is null. Empty
    /// on failure, with one line in @p error.
    QString parameterBlock(QString& error, QString* digest = nullptr) const;
};
