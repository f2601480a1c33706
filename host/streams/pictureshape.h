#pragma once

#include "host/streams/avpointers.h"

#include <QSize>
#include <QTransform>

namespace UICommonMdl
{

/// How decoded pictures are meant to be seen.
struct PictureShape {
    QTransform turn;            ///< by quarters, mirrored or not; nothing else
    AVRational points = {0, 1}; ///< width to height of one picture point; 0 when it is not known

    /// @p size after the turn; the other way round as well.
    QSize turned(const QSize& size) const;
    /// The size in which a picture of @p decoded size has its shape: turned, and enlarged where its
    /// points are not square.
    QSize shown(const QSize& decoded) const;
};

/// The turn that @p stream asks for; none when it asks for something else.
QTransform turnOf(const AVStream& stream);

} // namespace UICommonMdl
