#pragma once

#include "host/json/fwd.h"

#include <QFile>

#include <functional>

/**
 * A session being written: one step a line, each on the disk before the next one happens. When one
 * cannot be written, nothing comes after it: with a gap the session would do something else.
 */
class SessionFile
{
public:
    /// @p failed is called, once, with one line that says what cannot be written.
    explicit SessionFile(std::function<void(const QString&)> failed);

    /// Replaces @p path by an empty session; false with one line in @p error, when another
    /// recording is being written there, too.
    bool open(const QString& path, QString& error);
    void append(const kql::Json::Value& step);
    /// Puts @p step in the place of the last one.
    void replaceLast(const kql::Json::Value& step);

private:
    bool lock();
    void fail();

    std::function<void(const QString&)> m_failed; ///< null once it was called
    QFile m_file;
    qint64 m_lastStart = 0; ///< where the last step begins
};
