#pragma once

#include "host/json/value.h"

#include <QCryptographicHash>
#include <QString>

/// JSON documents kept as files.
namespace DocumentFile
{

/// Tells documents from others that have taken their places.
class Digest
{
public:
    /// The bytes of one document; of none where it cannot be read.
    void add(const QByteArray& bytes);
    QString text() const { return QString::fromLatin1(m_hash.result().toHex()); }

private:
    QCryptographicHash m_hash{QCryptographicHash::Sha256};
};

/// Reads @p path into @p document, and what was read into @p digest unless that is null; on failure
/// @p error is one line that says which file, line and column, and why.
bool read(const QString& path, kql::Json::Value& document, QString& error,
          Digest* digest = nullptr);

/// All of @p path, which may be a pipe but no other device, as one of those may have no end; false
/// with one line in @p error.
bool readBytes(const QString& path, QByteArray& bytes, QString& error);

/// Replaces @p path by @p text in one step, so that a failure leaves the old file; false with one
/// line in @p error.
bool write(const QString& path, const QString& text, QString& error);

} // namespace DocumentFile
