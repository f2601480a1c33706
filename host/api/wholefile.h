#pragma once

#include "host/api/kqhostexport.h"

#include <QFileDevice>

/// Files that are there as a whole or not at all.
namespace UICommonMdl::WholeFile
{

/// Replaces @p path by @p content in one step, with @p permissions unless there are none; links
/// are followed. On failure the old file stands, and @p error is one line that says which file
/// could not be written, and why.
KQHOST_EXPORT bool write(const QString& path, const QByteArray& content, QString& error,
                         QFileDevice::Permissions permissions = {});

/// Writes all of @p content to @p file, which is open without a buffer; false with the reason in
/// its errorString().
KQHOST_EXPORT bool writeAll(QFileDevice& file, const QByteArray& content);

/// What went wrong with @p file, in the operator's language where Qt's texts are translated: Qt
/// leaves its errors of files in English.
KQHOST_EXPORT QString faultOf(const QFileDevice& file);

/// Whether @p path is something else than a file: a folder, a device, a pipe. Replacing it would
/// take it from all who use it, so that write() refuses.
KQHOST_EXPORT bool isForeign(const QString& path);
/// The line that refuses it.
KQHOST_EXPORT QString foreignText(const QString& path);

} // namespace UICommonMdl::WholeFile
