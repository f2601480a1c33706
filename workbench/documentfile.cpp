#include "workbench/documentfile.h"

#include "host/api/limits.h"
#include "host/api/wholefile.h"
#include "host/json/reader.h"

#include <QCoreApplication>
#include <QFile>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace DocumentFile
{

namespace
{

/// In bytes: what is longer is no document; a part of a session would be another one.
constexpr qint64 kLongest = Limits::kJsonText;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(DocumentFile)
};

bool isDevice(const QString& path)
{
#ifdef Q_OS_UNIX
    struct stat found = {};
    return ::stat(QFile::encodeName(path).constData(), &found) == 0 && S_ISCHR(found.st_mode);
#else
    Q_UNUSED(path)
    return false;
#endif
}

} // namespace

void Digest::add(const QByteArray& bytes)
{
    m_hash.addData(bytes);
    m_hash.addData("\0", 1);
}

bool read(const QString& path, kql::Json::Value& document, QString& error, Digest* digest)
{
    QByteArray bytes;
    if (!readBytes(path, bytes, error))
        return false;
    if (digest)
        digest->add(bytes);
    kql::Json::Reader reader;
    if (reader.parse(std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())),
                     document))
        return true;
    error = QStringLiteral("%1:%2:%3: %4")
                .arg(path, QString::number(reader.errorLine()),
                     QString::number(reader.errorColumn()), reader.errorText());
    return false;
}

bool readBytes(const QString& path, QByteArray& bytes, QString& error)
{
    if (isDevice(path)) {
        error = Texts::tr("%1: it is no file").arg(path);
        return false;
    }
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        bytes = file.read(kLongest + 1);
    if (file.error() != QFileDevice::NoError)
        error = QStringLiteral("%1: %2").arg(path, UICommonMdl::WholeFile::faultOf(file));
    else if (bytes.size() > kLongest)
        error = Texts::tr("%1: it is longer than 128 MB").arg(path);
    else
        return true;
    return false;
}

bool write(const QString& path, const QString& text, QString& error)
{
    return UICommonMdl::WholeFile::write(path, text.toUtf8(), error);
}

} // namespace DocumentFile
