#include "tools/rulesctl/documents/filelist.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace
{

/// UTF-8 sorts by code points, UTF-16 does not.
bool isBefore(const QString& one, const QString& other)
{
    return one.toUtf8() < other.toUtf8();
}

} // namespace

QStringList FileList::of(const QStringList& words)
{
    QStringList files;
    for (const QString& word : words) {
        if (!QFileInfo(word).isDir()) {
            files.append(word);
            continue;
        }
        const QDir folder(word);
        QStringList names =
            folder.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Unsorted);
        names.erase(std::remove_if(
                        names.begin(), names.end(),
                        [](const QString& name) { return !name.endsWith(QLatin1String(".json")); }),
                    names.end());
        std::sort(names.begin(), names.end(), &isBefore);
        for (const QString& name : names)
            files.append(folder.filePath(name));
        if (names.isEmpty())
            files.append(word); // whose reading then says what is wrong
    }
    return files;
}
