#pragma once

#include <QSize>
#include <QString>

namespace UICommonMdl
{

/// Figures about a picture source, for the operator.
struct PictureStatistics {
    QString codec; ///< empty when nothing is decoded
    QSize size;
    double picturesPerSecond = 0; ///< of those that were shown lately
    qint64 dropped = 0;           ///< pictures that came but were not shown
};

} // namespace UICommonMdl
