#include "tools/rulesctl/documents/outputplace.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

OutputPlace::OutputPlace(const QString& path, const QStringList& words, const QStringList& files)
    : m_path(path),
      m_isFolder(QFileInfo(path).isDir() || path.endsWith(QLatin1Char('/')) || files.size() > 1 ||
                 std::any_of(words.begin(), words.end(),
                             [](const QString& word) { return QFileInfo(word).isDir(); }))
{
}

QString OutputPlace::fault(const QStringList& files, const QStringList& kept) const
{
    QHash<QString, QString> targets;
    for (const QString& file : files) {
        const QString target = targetOf(file);
        if (targets.contains(identityOf(target)))
            return QStringLiteral("two files are to be written to %1").arg(target);
        const QString why = replaced(target, kept);
        if (!why.isEmpty())
            return why;
        targets.insert(identityOf(target), file);
    }
    for (const QString& file : files) {
        const QString identity = identityOf(file);
        if (identityOf(targets.value(identity, file)) != identity)
            return QStringLiteral("%1 would be replaced, which is read").arg(file);
    }
    return {};
}

QString OutputPlace::replaced(const QString& target, const QStringList& kept)
{
    const auto found = std::find_if(kept.begin(), kept.end(), [&target](const QString& file) {
        return !file.isEmpty() && isSame(target, file);
    });
    return found == kept.end() ? QString()
                               : QStringLiteral("%1 would be replaced, which is read").arg(*found);
}

bool OutputPlace::prepare(QString& why) const
{
    if (!m_isFolder || QFileInfo(m_path).isDir() || QDir().mkpath(m_path))
        return true;
    why = QStringLiteral("%1: the folder cannot be made").arg(m_path);
    return false;
}

QString OutputPlace::targetOf(const QString& file) const
{
    return m_isFolder ? QDir(m_path).filePath(QFileInfo(file).fileName()) : m_path;
}

QString OutputPlace::identityOf(const QString& path)
{
    const QFileInfo info(path);
    const QString place = info.canonicalFilePath();
    if (!place.isEmpty())
        return place;
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? info.absolutePath() : folder) + QLatin1Char('/') + info.fileName();
}

bool OutputPlace::isSame(const QString& path, const QString& other)
{
    const QString place = QFileInfo(path).canonicalFilePath();
    return !place.isEmpty() && place == QFileInfo(other).canonicalFilePath();
}
