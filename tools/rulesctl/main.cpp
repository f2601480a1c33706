#include "tools/rulesctl/program.h"

#include <QGuiApplication>

#include <csignal>
#include <memory>

int main(int argc, char* argv[])
{
#ifdef SIGPIPE
    // A closed pipe is told by the write that fails.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    std::unique_ptr<QCoreApplication> application;
    if (argc > 1 && Program::paints(argv[1])) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // Of a session's folder, which jobs have not, it warns before it needs it.
        const QtMessageHandler usual =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        application = std::make_unique<QGuiApplication>(argc, argv);
        qInstallMessageHandler(usual);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    Program::useEnglish();
    return Program::run(QCoreApplication::arguments().mid(1));
}
