#pragma once

#include "workbench/sessionlog.h"

#include <QFile>

/// A session being written: one step a line, each on the disk before the next one happens.
class SessionFile : public SessionLog
{
public:
    /// Replaces @p path by an empty session; false with one line in @p error.
    bool open(const QString& path, QString& error);
    void append(const kql::Json::Value& step) override;
    void replaceLast(const kql::Json::Value& step) override;

private:
    QFile m_file;
    qint64 m_lastStart = 0; ///< where the last step begins
};
