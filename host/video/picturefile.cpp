#include "host/video/picturefile.h"

#include "host/api/wholefile.h"
#include "host/video/decodedpicture.h"
#include "host/video/picturesize.h"
#include "host/video/streammailbox.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QMimeDatabase>

#include <memory>

namespace UICommonMdl
{
namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(StillPicture)
};

class StillImage : public DecodedPicture
{
public:
    explicit StillImage(const QImage& image) : m_image(image) {}

    QSize size() const override { return m_image.size(); }
    QSize shownSize() const override { return m_image.size(); }
    QImage image() const override { return m_image; }

private:
    const QImage m_image;
};

bool isPictureType(const QMimeType& type)
{
    return type.name().startsWith(QStringLiteral("image/"));
}

QMimeType typeByContent(const QString& path)
{
    return QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchContent);
}

QString unreadableText(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    const QMimeType type = typeByContent(path);
    const bool isKnown =
        QImageReader::supportedMimeTypes().contains(type.name().toLatin1()) || !isPictureType(type);
    return isKnown ? Texts::tr("\"%1\" is not a picture that can be read.").arg(name)
                   : Texts::tr("\"%1\" is a picture of a kind that is not supported: %2.")
                         .arg(name, type.comment());
}

/// Null when the file cannot be shown, with the reason.
QImage load(const QString& path, QString& reason)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead()) {
        reason = unreadableText(path);
        return {};
    }
    // Before decoding, as far as the format tells it: an absurd size is never allocated.
    const QSize size = reader.size();
    if (size.isValid() && !isPlausibleSize(size)) {
        reason = implausibleSizeText(size);
        return {};
    }
    const QImage picture = reader.read();
    if (isPlausibleSize(picture.size()))
        return picture.convertToFormat(QImage::Format_RGB32);
    reason =
        Texts::tr("\"%1\" is damaged: %2.").arg(QFileInfo(path).fileName(), reader.errorString());
    return {};
}

} // namespace

/// The name decides where it tells: a bare stream of JPEG pictures begins like one picture.
bool isStillPicture(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return false;
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension);
    if (type.name().startsWith(QStringLiteral("video/")))
        return false;
    return isPictureType(type) || !QImageReader::imageFormat(path).isEmpty() ||
           isPictureType(typeByContent(path));
}

QString showStillPicture(const QString& path, StreamMailbox& mailbox)
{
    QString reason;
    const auto still = std::make_shared<StillImage>(load(path, reason));
    if (!reason.isEmpty())
        return reason;
    QSize shown;
    do {
        shown = mailbox.targetFor(still->size());
        mailbox.postPicture(
            still->image().scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), still);
    } while (mailbox.waitForAnotherSize(shown));
    return {};
}

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
