#pragma once

class QString;

namespace UICommonMdl
{

class StreamMailbox;

/// Whether a file's name or content says that it is one picture. A file that may be without end,
/// such as a named pipe, is none. It opens the file, which may take long.
bool isStillPicture(const QString& path);

/// Shows a picture file in @p mailbox, in each size that is asked for, until that is closed;
/// returns why it cannot be shown.
QString showStillPicture(const QString& path, StreamMailbox& mailbox);

} // namespace UICommonMdl
