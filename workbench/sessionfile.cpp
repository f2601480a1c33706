#include "workbench/sessionfile.h"

#include "host/api/wholefile.h"
#include "host/json/value.h"

#include <QCoreApplication>

#include <cerrno>
#include <utility>
#ifdef Q_OS_UNIX
#include <sys/file.h>
#endif

namespace WholeFile = UICommonMdl::WholeFile;

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SessionFile)
};

} // namespace

SessionFile::SessionFile(std::function<void(const QString&)> failed) : m_failed(std::move(failed))
{
}

bool SessionFile::open(const QString& path, QString& error)
{
    m_file.setFileName(path);
    // Emptied only when it is known that nobody else writes there.
    if (WholeFile::isForeign(path))
        error = WholeFile::foreignText(path);
    else if (!m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        error = QStringLiteral("%1: %2").arg(path, WholeFile::faultOf(m_file));
    else if (!lock())
        error = Texts::tr("%1: another recording is being written there").arg(path);
    else if (!m_file.resize(0))
        error = QStringLiteral("%1: %2").arg(path, WholeFile::faultOf(m_file));
    return error.isEmpty();
}

/// Ends with the file, and so with the process, however that ends.
bool SessionFile::lock()
{
#ifdef Q_OS_UNIX
    // Some network shares know no locks; recording goes on there.
    return ::flock(m_file.handle(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
#else
    return true;
#endif
}

void SessionFile::append(const kql::Json::Value& step)
{
    if (!m_failed)
        return;
    m_lastStart = m_file.pos();
    if (!WholeFile::writeAll(m_file, step.toCompactText().toUtf8() + '\n'))
        fail();
}

void SessionFile::fail()
{
    const QString error = Texts::tr("%1: %2; nothing more is recorded")
                              .arg(m_file.fileName(), WholeFile::faultOf(m_file));
    // Half a line would make all of it unreadable.
    m_file.resize(m_lastStart);
    std::exchange(m_failed, nullptr)(error);
}

void SessionFile::replaceLast(const kql::Json::Value& step)
{
    if (!m_failed)
        return;
    m_file.resize(m_lastStart);
    m_file.seek(m_lastStart);
    append(step);
}
