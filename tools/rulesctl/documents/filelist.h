#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

/**
 * The files that the words of --config stand for. A fleet has many, so that each takes little more
 * than its name.
 */
class FileList
{
public:
    /// A folder stands for the files *.json in it, by name in the order of code points; each other
    /// word, and a folder without such files, for itself.
    static FileList of(const QStringList& words);

    FileList() = default;
    FileList(const QStringList& paths);
    operator QStringList() const;

    int size() const { return static_cast<int>(m_files.size()); }
    QString at(int position) const;

private:
    struct File {
        int begin;  ///< of its name among all
        int folder; ///< position; -1 for none
    };

    void add(const QString& name, int folder);
    void addFilesIn(const QString& folder);

    QStringList m_folders;
    QByteArray m_names; ///< UTF-8, a NUL behind each
    QVector<File> m_files;
};
