#pragma once

#include "host/kqhostexport.h"

class QImage;
class QString;

namespace UICommonMdl
{

/// Replaces @p path by @p picture in one step, in the format that its suffix names, so that a
/// failure leaves the old file. False when the format or the place cannot be written.
KQHOST_EXPORT bool savePicture(const QImage& picture, const QString& path);

} // namespace UICommonMdl
