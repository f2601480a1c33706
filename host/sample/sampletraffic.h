#pragma once

#include <QtGlobal>

class QPainter;

namespace UICommonMdl
{

/// Paints what moves on the sample camera's street at @p seconds, over paintStreet().
void paintTraffic(QPainter& painter, qreal seconds);

} // namespace UICommonMdl
