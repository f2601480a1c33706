#include "tools/rulesctl/documents/documentfile.h"

#include "host/api/wholefile.h"
#include "host/json/reader.h"

#include <QFile>
#include <QFileInfo>

#include <string_view>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using kql::Json::Value;

namespace
{

constexpr char kFolder[] = "it is a folder";

/// How much of @p file, which is open, is to be read; with @p why where reading it might never end,
/// or would take too long.
qint64 bytesToRead(const QFile& file, QString& why)
{
#ifdef Q_OS_UNIX
    struct stat found = {};
    if (::fstat(file.handle(), &found) == 0 && S_ISCHR(found.st_mode))
        why = QStringLiteral("it is no file");
#endif
    const qint64 most = DocumentFile::kMostBytes;
    const qint64 size = file.isSequential() ? most : file.size();
    if (size > most)
        why = DocumentFile::tooLongText();
    return size + 1; // so that its end is seen
}

} // namespace

std::optional<QByteArray> DocumentFile::readBytes(const QString& path, DocumentError& error)
{
    error = {path, 0, 0, {}};
    QFile file(path);
    QByteArray bytes;
    // Unbuffered, as it is read in one piece.
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        const bool isFolder = QFileInfo(path).isDir();
        error.reason =
            isFolder ? QString::fromLatin1(kFolder) : UICommonMdl::WholeFile::faultOf(file);
        return std::nullopt;
    }
    const qint64 size = bytesToRead(file, error.reason);
    if (error.reason.isEmpty())
        bytes = file.read(size);
    if (file.error() != QFileDevice::NoError)
        error.reason = UICommonMdl::WholeFile::faultOf(file);
    else if (error.reason.isEmpty() && isTooLong(bytes))
        error.reason = tooLongText();
    return error.reason.isEmpty() ? std::optional(bytes) : std::nullopt;
}

std::optional<Value> DocumentFile::parse(const QByteArray& utf8, const QString& file,
                                         DocumentError& error)
{
    const std::string_view text(utf8.constData(), static_cast<std::size_t>(utf8.size()));
    kql::Json::Reader reader;
    Value document;
    if (!reader.parse(text, document))
        error = {file, reader.errorLine(), reader.errorColumn(), reader.errorText()};
    else if (!document.isObject())
        error = {file, 1, 1, QStringLiteral("the document is no object")};
    else
        return document;
    return std::nullopt;
}

std::optional<Value> DocumentFile::read(const QString& path, DocumentError& error)
{
    const std::optional<QByteArray> bytes = readBytes(path, error);
    return bytes ? parse(*bytes, path, error) : std::nullopt;
}

bool DocumentFile::isTooLong(const QByteArray& utf8)
{
    return utf8.size() > Limits::kMessageText &&
           (utf8.size() > kMostBytes || QString::fromUtf8(utf8).size() > Limits::kMessageText);
}

QString DocumentFile::tooLongText()
{
    return QStringLiteral("it is longer than %1 characters").arg(Limits::kMessageText);
}
