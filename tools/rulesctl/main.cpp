#include "tools/rulesctl/program.h"
#include "tools/rulesctl/standardstreams.h"

#include <QGuiApplication>

#include <csignal>
#include <memory>

int main(int argc, char* argv[])
{
    StandardStreams::occupy();
#ifdef SIGPIPE
    // A closed pipe is told by the write that fails.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    // Qt would take words that are options of its own, and act on them.
    static int ours = 1;
    std::unique_ptr<QCoreApplication> application;
    if (argc > 1 && Program::paints(argv[1])) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // Of a session's folder, which jobs have not, it warns before it needs it.
        const QtMessageHandler usual =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        application = std::make_unique<QGuiApplication>(ours, argv);
        qInstallMessageHandler(usual);
    } else {
        application = std::make_unique<QCoreApplication>(ours, argv);
    }
    Program::useEnglish();
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return Program::run(words);
}
