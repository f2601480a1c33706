#include "host/picturefile.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

namespace UICommonMdl
{

bool savePicture(const QImage& picture, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QImageWriter writer(&file, QFileInfo(path).suffix().toLatin1());
    return writer.write(picture) && file.commit();
}

} // namespace UICommonMdl
