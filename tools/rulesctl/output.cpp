#include "tools/rulesctl/output.h"

#include "tools/rulesctl/standardstreams.h"

#include <cstdio>
#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace
{

bool isTerminal(std::FILE* stream)
{
#ifdef Q_OS_WIN
    return ::_isatty(::_fileno(stream)) != 0;
#else
    return ::isatty(::fileno(stream)) != 0;
#endif
}

} // namespace

bool Output::write(const QByteArray& bytes)
{
    if (isBroken())
        return false;
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size)
        m_fault = StandardStreams::fault();
    return !isBroken();
}

bool Output::flush()
{
    if (!isBroken() && std::fflush(stdout) != 0)
        m_fault = StandardStreams::fault();
    return !isBroken();
}

void Complaint::say(const QString& line)
{
    show(line + QLatin1Char('\n'));
}

void Complaint::show(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

bool Output::isColoured() const
{
    return qEnvironmentVariableIsEmpty("NO_COLOR") && isTerminal();
}

bool Output::isTerminal() const
{
    return ::isTerminal(stdout);
}

bool Complaint::isTerminal()
{
    return ::isTerminal(stderr);
}
