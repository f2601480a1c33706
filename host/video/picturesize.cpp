#include "host/video/picturesize.h"

#include <QCoreApplication>

namespace UICommonMdl
{
namespace
{

constexpr int kLargestSide = 16384;
constexpr int kBorder = 8;
const QSize kLargestUnasked(3840, 2160);

} // namespace

bool isPlausibleSize(const QSize& size)
{
    return !size.isEmpty() && size.width() <= kLargestSide && size.height() <= kLargestSide;
}

QSize sizeUnasked(const QSize& size)
{
    const bool fits = size.boundedTo(kLargestUnasked) == size;
    return fits ? size : size.scaled(kLargestUnasked, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QString implausibleSizeText(const QSize& size)
{
    return QCoreApplication::translate("PictureSource",
                                       "The picture's size, %1 x %2, is out of range.")
        .arg(size.width())
        .arg(size.height());
}

std::optional<QPoint> placeOn(const QRect& picture, const QPoint& at)
{
    const QRect border = picture.adjusted(-kBorder, -kBorder, kBorder, kBorder);
    if (picture.isEmpty() || !border.contains(at))
        return std::nullopt;
    const QPoint inside = at - picture.topLeft();
    return QPoint(qBound(0, inside.x(), picture.width()), qBound(0, inside.y(), picture.height()));
}

QRect letterboxed(const QSize& picture, const QRect& bounds)
{
    if (picture.isEmpty() || bounds.isEmpty())
        return {};
    const QSize fitted = picture.scaled(bounds.size(), Qt::KeepAspectRatio).expandedTo({1, 1});
    const int left = bounds.left() + (bounds.width() - fitted.width()) / 2;
    const int top = bounds.top() + (bounds.height() - fitted.height()) / 2;
    return {QPoint(left, top), fitted};
}

} // namespace UICommonMdl
