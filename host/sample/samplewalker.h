#pragma once

#include <QColor>

class QPainter;

namespace UICommonMdl
{

/// Somebody on the pavement of the sample camera's street.
struct SampleWalker {
    QColor coat;
    QColor trousers;
    qreal height = 1.75; ///< metres
};

/**
 * Paints a walker whose feet are at @p x, @p z (metres, see streetview.h). @p step counts steps;
 * its fraction moves the legs. @p opacity is 0..1.
 */
void paintWalker(QPainter& painter, const SampleWalker& walker, qreal x, qreal z, qreal step,
                 qreal opacity);

} // namespace UICommonMdl
