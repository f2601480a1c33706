// Plays long days on the examples and says what came of them. Exit status 1: something did not
// hold; what it was, and how to see it again, is on the standard error stream.
#include "fuzz/day/simulatedday.h"
#include "workbench/display.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTextStream>

int main(int argc, char* argv[])
{
    if (!Display::isThere())
        Display::useOffscreen();
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{QStringLiteral("actions"), QStringLiteral("actions on each example"),
                        QStringLiteral("number"), QStringLiteral("300")},
                       {QStringLiteral("seed"), QStringLiteral("of the operator's choices"),
                        QStringLiteral("number"), QStringLiteral("1")},
                       {QStringLiteral("source"), QStringLiteral("picture to work on"),
                        QStringLiteral("address")}});
    parser.addPositionalArgument(QStringLiteral("examples"), QStringLiteral("names; none: all"));
    parser.process(application);

    const QDir examples(QStringLiteral(RULES_EXAMPLES_DIR));
    QStringList names = parser.positionalArguments();
    if (names.isEmpty())
        names = examples.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        SimulatedDay day(examples.filePath(name), parser.value(QStringLiteral("seed")).toUInt(),
                         parser.value(QStringLiteral("source")));
        const bool held = day.play(parser.value(QStringLiteral("actions")).toInt());
        QTextStream(held ? stdout : stderr) << day.report() << '\n';
        if (!held)
            return 1;
    }
    return 0;
}
