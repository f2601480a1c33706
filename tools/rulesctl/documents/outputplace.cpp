#include "tools/rulesctl/documents/outputplace.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

OutputPlace::OutputPlace(const QString& path, const QStringList& words, const QStringList& files)
    : m_path(path),
      m_isFolder(QFileInfo(path).isDir() || path.endsWith(QLatin1Char('/')) || files.size() > 1 ||
                 std::any_of(words.begin(), words.end(),
                             [](const QString& word) { return QFileInfo(word).isDir(); }))
{
}

QString OutputPlace::fault(const QStringList& files, const QString& input) const
{
    QSet<QString> targets;
    for (const QString& file : files) {
        const QString target = targetOf(file);
        if (targets.contains(target))
            return QStringLiteral("two files are to be written to %1").arg(target);
        if (isSame(target, input))
            return QStringLiteral("%1 would be replaced, which is read").arg(input);
        targets.insert(target);
    }
    return {};
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

bool OutputPlace::isSame(const QString& path, const QString& other)
{
    const QString place = QFileInfo(path).canonicalFilePath();
    return !place.isEmpty() && place == QFileInfo(other).canonicalFilePath();
}
