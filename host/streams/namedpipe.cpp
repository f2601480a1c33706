#include "host/streams/namedpipe.h"

#include <QFile>

#include <cerrno>

extern "C" {
#include <libavutil/error.h>
}

#if defined(Q_OS_UNIX)
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace UICommonMdl
{

#if defined(Q_OS_UNIX)

namespace
{

constexpr int kStepMilliseconds = 50;

} // namespace

NamedPipe::~NamedPipe()
{
    if (m_file >= 0)
        ::close(m_file);
}

bool NamedPipe::isAt(const QString& path)
{
    struct stat status {
    };
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 && S_ISFIFO(status.st_mode);
}

int NamedPipe::open(const QString& path, const std::function<bool()>& isGivenUp)
{
    m_file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (m_file < 0)
        return AVERROR(errno);
    pollfd waiting{m_file, POLLIN, 0};
    while (!isGivenUp()) {
        if (::poll(&waiting, 1, kStepMilliseconds) > 0)
            return 0;
    }
    return AVERROR_EXIT;
}

QByteArray NamedPipe::address() const
{
    return "pipe:" + QByteArray::number(m_file);
}

#else

NamedPipe::~NamedPipe() = default;

bool NamedPipe::isAt(const QString&)
{
    return false;
}

int NamedPipe::open(const QString&, const std::function<bool()>&)
{
    return AVERROR(ENOSYS);
}

QByteArray NamedPipe::address() const
{
    return {};
}

#endif

} // namespace UICommonMdl
