#include "workbench/commandline.h"
#include "workbench/display.h"
#include "workbench/language.h"
#include "workbench/logkeeper.h"
#include "workbench/theme.h"
#include "workbench/workbench.h"

#include <QApplication>
#include <QTextStream>

#include <cerrno>
#include <cstdio>
#include <optional>

namespace
{

QStringList argumentsOf(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int refuse(const QString& why)
{
    QTextStream(stderr) << "rules-workbench: " << why << '\n';
    return Workbench::Unusable;
}

/// Reads what the program is to do into @p options; else its exit status.
std::optional<int> readArguments(int argc, char* argv[], WorkbenchOptions& options)
{
    const QStringList arguments = argumentsOf(argc, argv);
    CommandLine inEnglish;
    inEnglish.parse(arguments);
    Language::choose(inEnglish.language());
    // There is no graphical application yet, so that help needs no display.
    const QCoreApplication application(argc, argv);
    const Language language;
    CommandLine commandLine;
    const CommandLine::Outcome outcome = commandLine.parse(arguments);
    if (outcome == CommandLine::Outcome::ShowText) {
        QTextStream out(stdout);
        out << commandLine.text();
        out.flush();
        const bool isShown = std::fflush(stdout) == 0 && out.status() == QTextStream::Ok;
        return isShown ? Workbench::SavedOrClosed : refuse(qt_error_string(errno));
    }
    if (outcome == CommandLine::Outcome::Unusable)
        return refuse(commandLine.text());
    options = commandLine.options();
    const bool replays = !options.replayFile.isEmpty();
    if (!WorkbenchDisplay::isThere() && !(replays && WorkbenchDisplay::useOffscreen()))
        return refuse(QCoreApplication::translate(
            "Workbench", "there is no display; only --replay works without one"));
    return std::nullopt;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setApplicationName(QStringLiteral("rules-workbench"));
    QApplication::setApplicationVersion(QStringLiteral(RULES_VERSION));
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // which always does so
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif

    WorkbenchOptions options;
    if (const std::optional<int> status = readArguments(argc, argv, options))
        return *status;
    WorkbenchDisplay::setPlainDensity();
    LogKeeper::start();
    QApplication application(argc, argv);
    Theme::apply(options.theme);
    WorkbenchDisplay::setPlainFont();
    const Language language;
    return Workbench(options).run();
}
