#include "host/video/letterbox.h"

namespace UICommonMdl
{

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
