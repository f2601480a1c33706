#pragma once

#include "host/api/kqhostexport.h"

class QImage;
class QString;

namespace UICommonMdl
{

class StreamMailbox;

/// Replaces @p path by @p picture in one step, in the format that its suffix names, so that a
/// failure leaves the old file. False when the format or the place cannot be written, with one
/// line in @p error that names the file.
KQHOST_EXPORT bool savePicture(const QImage& picture, const QString& path, QString& error);

/// Whether a file's name or content says that it is one picture. A file that may be without end,
/// such as a named pipe, is none. It opens the file, which may take long.
bool isStillPicture(const QString& path);

/// Shows a picture file in @p mailbox, in each size that is asked for, until that is closed;
/// returns why it cannot be shown.
QString showStillPicture(const QString& path, StreamMailbox& mailbox);

} // namespace UICommonMdl
