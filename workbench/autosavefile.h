#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFileInfo>
#include <QLockFile>
#include <memory>

/**
 * The file of a run's unsaved work. A lock beside it, taken with the first write, tells other
 * runs that this one is alive.
 */
class AutosaveFile
{
public:
    /// In @p folder, under a name that no other run has.
    explicit AutosaveFile(const QString& folder);

    /// The folder in which a user's work is kept.
    static QString usualFolder();
    /// The newest file of a run that ended without removing it, locked for this run; null when
    /// there is none.
    static std::unique_ptr<AutosaveFile> leftBehind(const QString& folder);
    /// Removes what runs that were killed left in @p folder besides their work: locks, and files
    /// that were still being written.
    static void sweep(const QString& folder);

    const QString& path() const { return m_path; }
    QDateTime written() const { return QFileInfo(m_path).lastModified(); }
    /// Replaces the content in one step; false with one line in @p error, the old one stands then.
    bool write(const QByteArray& content, QString& error);
    void remove();

private:
    struct Existing {
    };
    AutosaveFile(const QString& path, Existing);
    bool lockLeftBehind();

    QString m_path;
    QLockFile m_lock;
};
