#include "tools/rulesctl/render/ground.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>

namespace
{

bool isUsable(const QSize& size)
{
    const auto isSide = [](int side) {
        return side >= Ground::kLeastSide && side <= Ground::kMostSide;
    };
    return isSide(size.width()) && isSide(size.height());
}

QString unusableSize(const QSize& size)
{
    return QStringLiteral("a picture of %1x%2 pixels; sides are from %3 to %4")
        .arg(size.width())
        .arg(size.height())
        .arg(Ground::kLeastSide)
        .arg(Ground::kMostSide);
}

/// As it is in its file where every browser knows that, else as PNG.
QByteArray dataUrlOf(const QString& path, const QByteArray& format, bool isTurned,
                     const QImage& picture)
{
    QByteArray bytes;
    QByteArray kind = format == "jpg" ? QByteArray("jpeg") : format;
    QFile file(path);
    if (!isTurned && (kind == "jpeg" || kind == "png") && file.open(QIODevice::ReadOnly)) {
        bytes = file.readAll();
    } else {
        kind = "png";
        QBuffer buffer(&bytes);
        picture.save(&buffer, "PNG");
    }
    return "data:image/" + kind + ";base64," + bytes.toBase64();
}

} // namespace

std::optional<Ground> Ground::ofSize(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([0-9]{1,5})x([0-9]{1,5})\\z"));
    const auto match = pattern.match(text);
    Ground ground;
    ground.size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    if (!match.hasMatch() || !isUsable(ground.size))
        return std::nullopt;
    return ground;
}

std::optional<Ground> Ground::ofFile(const QString& path, QString& why)
{
    if (!QFileInfo(path).isFile()) {
        why =
            QFileInfo::exists(path) ? QStringLiteral("not a file") : QStringLiteral("no such file");
        return std::nullopt;
    }
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    const bool isTurned = reader.transformation() != QImageIOHandler::TransformationNone;
    // Before decoding, as far as the format tells it: an absurd size is never allocated.
    if (reader.size().isValid() && !isUsable(reader.size())) {
        why = unusableSize(reader.size());
        return std::nullopt;
    }
    Ground ground;
    ground.picture = reader.read();
    ground.size = ground.picture.size();
    if (ground.picture.isNull())
        why = QStringLiteral("not a picture that can be read: ") + reader.errorString();
    else if (!isUsable(ground.size))
        why = unusableSize(ground.size);
    else
        ground.dataUrl = dataUrlOf(path, format, isTurned, ground.picture);
    if (!why.isEmpty())
        return std::nullopt;
    return ground;
}
