#pragma once

#include "host/api/kqhostexport.h"

class QImage;
class QString;

namespace UICommonMdl
{

/// Replaces @p path by @p picture in one step, in the format that its suffix names, so that a
/// failure leaves the old file. False when the format or the place cannot be written, with one
/// line in @p error that names the file.
KQHOST_EXPORT bool savePicture(const QImage& picture, const QString& path, QString& error);

} // namespace UICommonMdl
