#include "tools/rulesctl/documents/filelist.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

namespace
{

constexpr int kNoFolder = -1;

} // namespace

FileList FileList::of(const QStringList& words)
{
    FileList files;
    for (const QString& word : words) {
        const int before = files.size();
        if (QFileInfo(word).isDir())
            files.addFilesIn(word);
        if (files.size() == before)
            files.add(word, kNoFolder); // of an empty folder its reading says what is wrong
    }
    return files;
}

FileList::FileList(const QStringList& paths)
{
    for (const QString& path : paths)
        add(path, kNoFolder);
}

FileList::operator QStringList() const
{
    QStringList paths;
    for (int i = 0; i < size(); ++i)
        paths.append(at(i));
    return paths;
}

QString FileList::at(int position) const
{
    const File& file = m_files.at(position);
    const QString name = QString::fromUtf8(m_names.constData() + file.begin);
    return file.folder == kNoFolder ? name : QDir(m_folders.at(file.folder)).filePath(name);
}

void FileList::add(const QString& name, int folder)
{
    m_files.append({static_cast<int>(m_names.size()), folder});
    m_names.append(name.toUtf8()).append('\0');
}

void FileList::addFilesIn(const QString& folder)
{
    const int first = m_files.size();
    QDirIterator found(folder, QDir::Files | QDir::Hidden | QDir::System);
    while (found.hasNext()) {
        found.next();
        const QString name = found.fileName();
        if (name.endsWith(QLatin1String(".json")))
            add(name, static_cast<int>(m_folders.size()));
    }
    m_folders.append(folder);
    // UTF-8 sorts by code points, UTF-16 does not.
    std::sort(m_files.begin() + first, m_files.end(), [this](const File& one, const File& other) {
        return std::strcmp(m_names.constData() + one.begin, m_names.constData() + other.begin) < 0;
    });
}
