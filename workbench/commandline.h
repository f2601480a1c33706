#pragma once

#include "workbench/workbenchoptions.h"

#include <QCommandLineParser>

/// The workbench's command line.
class CommandLine
{
public:
    CommandLine();

    enum class Outcome { Run, ShowText, Unusable };
    /// Parses @p arguments, the program's name first. ShowText and Unusable come with text().
    Outcome parse(const QStringList& arguments);

    const WorkbenchOptions& options() const { return m_options; }
    /// Of what parse() was given, whatever its outcome; empty: the desktop's.
    QString language() const;
    /// Help, version, or the one line that says what is wrong. Help needs an application, of
    /// whatever kind.
    QString text() const;

private:
    bool readOptions();
    bool readChannelSources();
    bool knowsTheme();
    bool keepsFiles();
    bool readLanguage();
    bool readNumber(const QString& name, int& target);
    bool readSwitch(const QString& name, std::optional<bool>& target);

    QCommandLineParser m_parser;
    WorkbenchOptions m_options;
    QString m_text;
    bool m_wantsHelp = false;
};
