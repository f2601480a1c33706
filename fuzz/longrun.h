#pragma once

#include "workbench/display.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

/// A program that does things at random, from a seed, and says in the end whether all held.
/// It is offscreen where there is no display.
class LongRun
{
public:
    LongRun(int& argc, char** argv) : m_application(withDisplay(argc), argv)
    {
        parser.addHelpOption();
        parser.addOption({QStringLiteral("seed"), QStringLiteral("of all choices"),
                          QStringLiteral("number"), QStringLiteral("1")});
    }

    int number(const char* option) const { return parser.value(QLatin1String(option)).toInt(); }
    unsigned seed() const { return parser.value(QStringLiteral("seed")).toUInt(); }

    /// The program's exit status.
    static int end(bool held, const QString& report)
    {
        QTextStream(held ? stdout : stderr) << report << '\n';
        return held ? 0 : 1;
    }

private:
    static int& withDisplay(int& argc)
    {
        if (!WorkbenchDisplay::isThere())
            WorkbenchDisplay::useOffscreen();
        return argc;
    }

    QApplication m_application;

public:
    QCommandLineParser parser;
};
