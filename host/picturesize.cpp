#include "host/picturesize.h"

#include <QCoreApplication>

namespace UICommonMdl
{
namespace
{

constexpr int kLargestSide = 16384;

} // namespace

bool isPlausibleSize(const QSize& size)
{
    return !size.isEmpty() && size.width() <= kLargestSide && size.height() <= kLargestSide;
}

QString implausibleSizeText(const QSize& size)
{
    return QCoreApplication::translate("PictureSource",
                                       "The picture's size, %1 x %2, is out of range.")
        .arg(size.width())
        .arg(size.height());
}

} // namespace UICommonMdl
