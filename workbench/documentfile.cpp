#include "workbench/documentfile.h"

#include "host/reader.h"
#include "host/wholefile.h"

#include <QCoreApplication>
#include <QFile>

namespace DocumentFile
{

bool read(const QString& path, kql::Json::Value& document, QString& error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return false;
    }
    const QByteArray bytes = file.readAll();
    kql::Json::Reader reader;
    if (reader.parse(std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())),
                     document))
        return true;
    error = QStringLiteral("%1:%2:%3: %4")
                .arg(path, QString::number(reader.errorLine()),
                     QString::number(reader.errorColumn()), reader.errorText());
    return false;
}

bool write(const QString& path, const QString& text, QString& error)
{
    return UICommonMdl::WholeFile::write(path, text.toUtf8(), error);
}

} // namespace DocumentFile
