#pragma once

#include <QString>
#include <QStringList>

/// Where what is made of files is written: one file, or files of the same names in a folder.
class OutputPlace
{
public:
    /// @p path is a folder where it is one, ends in a bar, or has to take what is made of
    /// @p words, a folder or several files, which stand for @p files.
    OutputPlace(const QString& path, const QStringList& words, const QStringList& files);

    /// What keeps it from taking all of @p files: two of one name, one in another's place, or one
    /// of @p kept, which are read and must stay. Empty for nothing.
    QString fault(const QStringList& files, const QStringList& kept) const;
    /// Makes the folder where it is missing; false with one line in @p why.
    bool prepare(QString& why) const;
    QString targetOf(const QString& file) const;

    /// One text for all ways to a file, be it there or not.
    static QString identityOf(const QString& path);
    /// Whether both lead to one file, by whatever way.
    static bool isSame(const QString& path, const QString& other);
    /// Which of @p kept, which are read and must stay, @p target would replace, in a sentence;
    /// empty for none.
    static QString replaced(const QString& target, const QStringList& kept);

private:
    QString m_path;
    bool m_isFolder;
};
