#include "tools/rulesctl/inputlines.h"

#include "tools/rulesctl/documents/documentfile.h"
#include "tools/rulesctl/standardstreams.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace
{

constexpr int kBlock = 64 * 1024;

/// As much as there is, up to @p size; 0 at the end, -1 on failure.
int readInput(char* target, int size)
{
#ifdef Q_OS_WIN
    return ::_read(::_fileno(stdin), target, static_cast<unsigned>(size));
#else
    ssize_t count = 0;
    do {
        count = ::read(STDIN_FILENO, target, static_cast<size_t>(size));
    } while (count < 0 && errno == EINTR);
    return static_cast<int>(count);
#endif
}

} // namespace

bool InputLines::next(QByteArray& line)
{
    line.clear();
    m_isTooLong = false;
    while (true) {
        const std::size_t end = m_buffer.find('\n', m_at);
        take(line, std::min(end, m_buffer.size()) - m_at);
        if (end != std::string::npos) {
            ++m_at;
            break;
        }
        if (fill())
            continue;
        if (line.isEmpty() && !m_isTooLong)
            return false;
        break;
    }
    ++m_number;
    m_isTooLong = m_isTooLong || DocumentFile::isTooLong(line);
    if (m_isTooLong)
        line.clear();
    return true;
}

void InputLines::take(QByteArray& line, std::size_t count)
{
    if (!m_isTooLong)
        line.append(m_buffer.data() + m_at, static_cast<int>(count));
    m_at += count;
    if (line.size() <= DocumentFile::kMostBytes)
        return;
    m_isTooLong = true;
    line = QByteArray(); // its memory, too
}

bool InputLines::fill()
{
    m_at = 0;
    m_buffer.resize(kBlock);
    const int count = m_hasEnded ? 0 : readInput(m_buffer.data(), kBlock);
    m_hasEnded = count <= 0;
    if (count < 0)
        m_fault = StandardStreams::fault();
    m_buffer.resize(static_cast<std::size_t>(std::max(0, count)));
    return count > 0;
}
