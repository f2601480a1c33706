#pragma once

#include "host/api/limits.h"
#include "tools/rulesctl/documents/documenterror.h"

#include <QByteArray>
#include <optional>

/// Documents as files and as messages have them.
namespace DocumentFile
{

/// The most that a text within the limit of a client's message takes: each unit of UTF-16 is at
/// most three bytes.
constexpr qint64 kMostBytes = qint64{3} * Limits::kMessageText;

/// All bytes of @p path, which may be a pipe but neither a folder nor a device; nothing with
/// @p error where it cannot be read or is longer than a client's message may be.
std::optional<QByteArray> readBytes(const QString& path, DocumentError& error);

/// @p utf8 as a document, whose root has to be an object; @p file is its name in @p error.
std::optional<kql::Json::Value> parse(const QByteArray& utf8, const QString& file,
                                      DocumentError& error);

/// Both at once.
std::optional<kql::Json::Value> read(const QString& path, DocumentError& error);

/// Whether @p utf8 is longer than a client's message may be, which Limits counts in UTF-16.
bool isTooLong(const QByteArray& utf8);
QString tooLongText();

} // namespace DocumentFile
