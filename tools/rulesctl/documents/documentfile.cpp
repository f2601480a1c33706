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

/// What reading might never end of, or is no file to begin with; null for none.
const char* kindThatIsRefused(const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return "it is a folder";
#ifdef Q_OS_UNIX
    struct stat found = {};
    if (::stat(QFile::encodeName(path).constData(), &found) == 0 && S_ISCHR(found.st_mode))
        return "it is no file";
#endif
    return info.size() > DocumentFile::kMostBytes ? "" : nullptr;
}

} // namespace

std::optional<QByteArray> DocumentFile::readBytes(const QString& path, DocumentError& error)
{
    error = {path, 0, 0, {}};
    if (const char* const why = kindThatIsRefused(path)) {
        error.reason = *why != '\0' ? QString::fromLatin1(why) : tooLongText();
        return std::nullopt;
    }
    QFile file(path);
    QByteArray bytes;
    // Unbuffered, as it is read in one piece.
    if (file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        bytes = file.read(kMostBytes + 1);
    if (file.error() != QFileDevice::NoError)
        error.reason = UICommonMdl::WholeFile::faultOf(file);
    else if (isTooLong(bytes))
        error.reason = tooLongText();
    else
        return bytes;
    return std::nullopt;
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
