#include "workbench/commandline.h"
#include "workbench/display.h"
#include "workbench/theme.h"
#include "workbench/workbench.h"

#include <QApplication>
#include <QTextStream>

#include <cerrno>
#include <cstdio>

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

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setApplicationName(QStringLiteral("rules-workbench"));
    QApplication::setApplicationVersion(QStringLiteral(RULES_VERSION));
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // which always does so
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif

    // Parsed before there is a graphical application, so that help needs no display.
    CommandLine commandLine;
    const CommandLine::Outcome outcome = commandLine.parse(argumentsOf(argc, argv));
    if (outcome == CommandLine::Outcome::ShowText) {
        const QCoreApplication application(argc, argv);
        QTextStream out(stdout);
        out << commandLine.text();
        out.flush();
        const bool isShown = std::fflush(stdout) == 0 && out.status() == QTextStream::Ok;
        return isShown ? Workbench::SavedOrClosed : refuse(qt_error_string(errno));
    }
    if (outcome == CommandLine::Outcome::Unusable)
        return refuse(commandLine.text());
    const bool replays = !commandLine.options().replayFile.isEmpty();
    if (!WorkbenchDisplay::isThere() && !(replays && WorkbenchDisplay::useOffscreen()))
        return refuse(QStringLiteral("there is no display; only --replay works without one"));

    QApplication application(argc, argv);
    Theme::apply(commandLine.options().theme);
    return Workbench(commandLine.options()).run();
}
