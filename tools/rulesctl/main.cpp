#include "tools/rulesctl/program.h"

#include <QCoreApplication>

#include <csignal>

int main(int argc, char* argv[])
{
#ifdef SIGPIPE
    // A closed pipe is told by the write that fails.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    const QCoreApplication application(argc, argv);
    Program::useEnglish();
    return Program::run(QCoreApplication::arguments().mid(1));
}
