#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// What the file of sources keeps from run to run. It is an ini file that only its user can read:
/// addresses may hold passwords.
struct SourcesFile {
    QMap<QString, QString> addresses; ///< by channel id
    QStringList recent;               ///< the newest first
    bool remembersLogins = false;     ///< or else it holds no user name and no password

    QString damage; ///< why not all of the file was read, in one line; empty when it was,
                    ///< or was read before

    /// Takes what can be read of @p path; nothing else stays.
    void read(const QString& path);
    /// Replaces @p path in one step; false with one line in @p error.
    bool write(const QString& path, QString& error) const;
};
