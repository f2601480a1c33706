#include "host/api/wholefile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace UICommonMdl::WholeFile
{

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(WholeFile)
};

/// What shares and quotas refuse is often told here first, and commit() does not listen.
bool reachesDisk(const QFileDevice& file, QString& why)
{
#ifdef Q_OS_UNIX
    if (::fsync(file.handle()) != 0 && errno != EINVAL) {
        why = qt_error_string(errno);
        return false;
    }
#else
    Q_UNUSED(file)
    Q_UNUSED(why)
#endif
    return true;
}

/// False with the reason in @p why.
bool replace(const QString& path, const QByteArray& content, QFileDevice::Permissions permissions,
             QString& why)
{
    QSaveFile file(path);
    // Unbuffered, as commit() goes on when the last of a buffer cannot be written.
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                           (!permissions || file.setPermissions(permissions)) &&
                           writeAll(file, content);
    if (isWritten && !reachesDisk(file, why))
        return false;
    if (isWritten && file.commit())
        return true;
    why = faultOf(file);
    return false;
}

} // namespace

bool write(const QString& path, const QByteArray& content, QString& error,
           QFileDevice::Permissions permissions)
{
    if (isForeign(path)) {
        error = foreignText(path);
        return false;
    }
    const QFileInfo old(path);
    QString why;
    if (replace(old.exists() ? old.canonicalFilePath() : path, content, permissions, why))
        return true;
    error = QStringLiteral("%1: %2; %3")
                .arg(path, why,
                     old.exists() ? Texts::tr("the old file stands")
                                  : Texts::tr("nothing was written"));
    return false;
}

bool writeAll(QFileDevice& file, const QByteArray& content)
{
    qint64 written = 0;
    while (written < content.size()) {
        // After a part only the next attempt tells why.
        const qint64 more = file.write(content.constData() + written, content.size() - written);
        if (more <= 0)
            return false;
        written += more;
    }
    return true;
}

QString faultOf(const QFileDevice& file)
{
    return QCoreApplication::translate("QIODevice", file.errorString().toUtf8().constData());
}

bool isForeign(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile();
}

QString foreignText(const QString& path)
{
    return Texts::tr("%1: it is no regular file, and is not replaced").arg(path);
}

} // namespace UICommonMdl::WholeFile
