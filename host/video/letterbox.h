#pragma once

#include "host/api/kqhostexport.h"

#include <QRect>

namespace UICommonMdl
{

/**
 * The largest rectangle of a picture's shape in the middle of @p bounds, at least one pixel wide
 * and high; empty when either is empty.
 */
KQHOST_EXPORT QRect letterboxed(const QSize& picture, const QRect& bounds);

} // namespace UICommonMdl
