#include "host/stillpicturesource.h"

#include "host/picturesize.h"

#include <QFileInfo>
#include <QImageReader>

namespace UICommonMdl
{

StillPictureSource::StillPictureSource(const QString& file) : m_file(file) {}

void StillPictureSource::start()
{
    const QString reason = load();
    if (!reason.isEmpty()) {
        setState(PictureState::NoSignal, reason);
        return;
    }
    setState(PictureState::Playing);
    announcePicture();
}

void StillPictureSource::stop()
{
    setState(PictureState::Ended);
}

QImage StillPictureSource::picture() const
{
    return m_picture;
}

QSize StillPictureSource::pictureSize() const
{
    return m_picture.size();
}

QString StillPictureSource::load()
{
    const QFileInfo info(m_file);
    const QString name = info.fileName();
    if (!info.isFile())
        return tr("There is no picture file \"%1\".").arg(name);
    QImageReader reader(m_file);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        return tr("\"%1\" is not a picture that can be read.").arg(name);
    // Before decoding, as far as the format tells it: an absurd size is never allocated.
    const QSize size = reader.size();
    if (size.isValid() && !isPlausibleSize(size))
        return implausibleSizeText(size);
    const QImage picture = reader.read();
    if (!isPlausibleSize(picture.size()))
        return tr("\"%1\" is damaged: %2.").arg(name, reader.errorString());
    m_picture = picture.convertToFormat(QImage::Format_RGB32);
    return {};
}

} // namespace UICommonMdl
