#pragma once

#include "host/api/kqhostexport.h"

#include <QRect>
#include <QString>
#include <optional>

namespace UICommonMdl
{

/// False for an empty size and for one that no camera has: it would only take the memory.
KQHOST_EXPORT bool isPlausibleSize(const QSize& size);
/// @p size, or the largest of its shape that is worth the work while nobody has asked for one.
KQHOST_EXPORT QSize sizeUnasked(const QSize& size);
/// Says to the operator that @p size is refused.
KQHOST_EXPORT QString implausibleSizeText(const QSize& size);
/// Where on @p picture a mouse at @p at works, both in pixels of one widget; up to 8 pixels beside
/// it on its border, which is 0 or the full width or height. Nothing farther out, and nothing
/// without a picture.
KQHOST_EXPORT std::optional<QPoint> placeOn(const QRect& picture, const QPoint& at);
/// The largest rectangle of a picture's shape in the middle of @p bounds, at least one pixel wide
/// and high; empty when either is empty.
KQHOST_EXPORT QRect letterboxed(const QSize& picture, const QRect& bounds);

} // namespace UICommonMdl
