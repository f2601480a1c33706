#include "workbench/autosavefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace
{

const auto kSuffix = QStringLiteral(".jsonl");
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

AutosaveFile::AutosaveFile(const QString& path, Existing)
    : m_path(path), m_lock(path + QStringLiteral(".lock"))
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
        if (file->m_lock.tryLock(0) && QFileInfo::exists(file->m_path))
            return file;
    }
    return nullptr;
}

QDateTime AutosaveFile::written() const
{
    return QFileInfo(m_path).lastModified();
}

bool AutosaveFile::write(const QByteArray& content)
{
    if (!QDir().mkpath(QFileInfo(m_path).path()) || !(m_lock.isLocked() || m_lock.tryLock(0)))
        return false;
    QSaveFile file(m_path);
    return file.open(QIODevice::WriteOnly) && file.setPermissions(kOwnerOnly) &&
           file.write(content) == content.size() && file.commit();
}

void AutosaveFile::remove()
{
    QFile::remove(m_path);
    m_lock.unlock();
}
