#pragma once

#include <QFile>

namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// A session being written: one step a line, each on the disk before the next one happens.
class SessionFile
{
public:
    /// Replaces @p path by an empty session; false with one line in @p error.
    bool open(const QString& path, QString& error);
    void append(const kql::Json::Value& step);
    /// Writes @p step in the place of the last one.
    void replaceLast(const kql::Json::Value& step);

private:
    QFile m_file;
    qint64 m_lastStart = 0; ///< where the last step begins
};
