#include "tools/rulesctl/standardstreams.h"

#include <cerrno>
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

void StandardStreams::occupy()
{
#ifdef Q_OS_UNIX
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        const bool isOpen = ::fcntl(stream, F_GETFD) >= 0;
        // The lowest free number is given out, which is this one.
        if (!isOpen && ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) < 0)
            return;
    }
#endif
}

QString StandardStreams::fault()
{
    return errno == EBADF ? QStringLiteral("it is closed") : qt_error_string(errno);
}
