#include "host/video/picturefile.h"

#include "host/api/wholefile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>

namespace UICommonMdl
{

bool savePicture(const QImage& picture, const QString& path, QString& error)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, QFileInfo(path).suffix().toLatin1());
    if (writer.write(picture))
        return WholeFile::write(path, buffer.data(), error);
    error = QStringLiteral("%1: %2").arg(path, writer.errorString());
    return false;
}

} // namespace UICommonMdl
