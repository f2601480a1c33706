#include "workbench/autosavefile.h"

#include "host/api/wholefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

namespace
{

const auto kSuffix = QStringLiteral(".jsonl");
const auto kLockSuffix = QStringLiteral(".lock");
/// Another run that sweeps holds a lock for a moment only.
constexpr int kLockPatience = 500; // milliseconds
constexpr QFile::Permissions kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

QString ownPath(const QString& folder)
{
    // The time tells this run from an earlier one with the same process id.
    return QStringLiteral("%1/%2-%3%4")
        .arg(folder, QString::number(QDateTime::currentMSecsSinceEpoch()),
             QString::number(QCoreApplication::applicationPid()), kSuffix);
}

} // namespace

AutosaveFile::AutosaveFile(const QString& folder) : AutosaveFile(ownPath(folder), Existing()) {}

AutosaveFile::AutosaveFile(const QString& path, Existing) : m_path(path), m_lock(path + kLockSuffix)
{
    // However old it is, it holds for as long as its process lives.
    m_lock.setStaleLockTime(0);
}

QString AutosaveFile::usualFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/autosave");
}

std::unique_ptr<AutosaveFile> AutosaveFile::leftBehind(const QString& folder)
{
    const auto entries =
        QDir(folder).entryInfoList({QLatin1Char('*') + kSuffix}, QDir::Files, QDir::Time);
    for (const QFileInfo& entry : entries) {
        std::unique_ptr<AutosaveFile> file(new AutosaveFile(entry.filePath(), Existing()));
        if (file->lockLeftBehind() && QFileInfo::exists(file->m_path))
            return file;
    }
    return nullptr;
}

void AutosaveFile::sweep(const QString& folder)
{
    // A file that is being written has six letters and digits behind its later name.
    static const QRegularExpression ours(
        QStringLiteral("^(\\d+-\\d+\\.jsonl)(\\.lock|\\.[A-Za-z0-9]{6})$"));
    for (const QFileInfo& entry : QDir(folder).entryInfoList(QDir::Files | QDir::NoSymLinks)) {
        const auto match = ours.match(entry.fileName());
        if (!match.hasMatch())
            continue;
        AutosaveFile file(QDir(folder).filePath(match.captured(1)), Existing());
        // A lock that can be taken was a dead run's; it goes when this one lets go of it.
        if (file.lockLeftBehind() && match.captured(2) != kLockSuffix)
            QFile::remove(entry.filePath());
    }
}

/// A lock without an owner is of a run that was killed before it wrote its name there; the
/// system's own lock on the file keeps one that is about to write it.
bool AutosaveFile::lockLeftBehind()
{
    if (m_lock.tryLock(0))
        return true;
    qint64 process = 0;
    QString host;
    QString program;
    return m_lock.error() == QLockFile::LockFailedError &&
           !m_lock.getLockInfo(&process, &host, &program) && m_lock.removeStaleLockFile() &&
           m_lock.tryLock(0);
}

bool AutosaveFile::write(const QByteArray& content, QString& error)
{
    const QString folder = QFileInfo(m_path).path();
    if (!QDir().mkpath(folder) || !(m_lock.isLocked() || m_lock.tryLock(kLockPatience))) {
        error = QCoreApplication::translate("AutosaveFile", "%1: nothing can be written there")
                    .arg(folder);
        return false;
    }
    return UICommonMdl::WholeFile::write(m_path, content, error, kOwnerOnly);
}

void AutosaveFile::remove()
{
    QFile::remove(m_path);
    m_lock.unlock();
}
