#pragma once

#include <QList>
#include <QString>

/// The documents that were loaded last, the newest first. They are kept from run to run once
/// keepIn() was called.
class RecentDocuments
{
public:
    struct Documents {
        QString templateFile;
        QString configFile; ///< may be empty
        bool operator==(const Documents& other) const
        {
            return templateFile == other.templateFile && configFile == other.configFile;
        }
    };

    /// The file of this user's workbench.
    static QString usualFile();

    /// Reads what @p file keeps, as far as it can be read, and writes every later change to it.
    void keepIn(const QString& file);
    /// Puts @p documents, whose paths are made absolute, before the others.
    void add(const Documents& documents);
    const QList<Documents>& all() const { return m_documents; }
    /// Why the last change is not in the file, in one line; empty when it is.
    const QString& error() const { return m_error; }

private:
    void read();
    void write();

    QString m_file; ///< empty: nothing is kept
    QString m_error;
    QList<Documents> m_documents;
};
