// Plays long days on the examples and says what came of them. Exit status 1: something did not
// hold; what it was, and how to see it again, is on the standard error stream.
#include "fuzz/day/crashedday.h"
#include "fuzz/day/simulatedday.h"
#include "fuzz/longrun.h"

#include <QDir>
#include <QTemporaryDir>

namespace
{

struct Outcome {
    bool held;
    QString report;
};

Outcome play(const LongRun& run, const QString& name)
{
    const QCommandLineParser& options = run.parser;
    const QString example = QDir(QStringLiteral(RULES_EXAMPLES_DIR)).filePath(name);
    const unsigned seed = run.seed();
    const int actions = run.number("actions");
    if (options.isSet(QStringLiteral("crashes"))) {
        CrashedDay day(name, seed);
        const bool held = day.play(run.number("crashes"));
        return {held, day.report()};
    }
    if (options.isSet(QStringLiteral("until-killed"))) {
        SimulatedDay day(example, seed, options.value(QStringLiteral("until-killed")));
        day.playUntilKilled(actions);
        return {false, day.report()};
    }
    const QTemporaryDir folder;
    SimulatedDay day(example, seed, folder.path(), options.value(QStringLiteral("source")));
    const bool held = day.play(actions);
    return {held, day.report()};
}

} // namespace

int main(int argc, char* argv[])
{
    LongRun run(argc, argv);
    QCommandLineParser& parser = run.parser;
    parser.addOptions({{QStringLiteral("actions"), QStringLiteral("actions on each example"),
                        QStringLiteral("number"), QStringLiteral("300")},
                       {QStringLiteral("crashes"),
                        QStringLiteral("instead of one long day, work that is killed that often "
                                       "and restored, on each example"),
                        QStringLiteral("number")},
                       {QStringLiteral("source"), QStringLiteral("picture to work on"),
                        QStringLiteral("address")}});
    QCommandLineOption untilKilled(QStringLiteral("until-killed"), {}, QStringLiteral("folder"));
    untilKilled.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(untilKilled);
    parser.addPositionalArgument(QStringLiteral("examples"), QStringLiteral("names; none: all"));
    parser.process(*qApp);

    const QDir examples(QStringLiteral(RULES_EXAMPLES_DIR));
    QStringList names = parser.positionalArguments();
    if (names.isEmpty()) {
        names = examples.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        names.removeOne(QStringLiteral("client"));
    }
    for (const QString& name : names) {
        const Outcome outcome = play(run, name);
        if (LongRun::end(outcome.held, outcome.report) != 0)
            return 1;
    }
    return 0;
}
