#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

struct SourcesFile;

/**
 * The addresses of the channels' pictures, and the sources that were shown last. They are kept
 * from run to run once keepIn() was called, in a file that only its user can read. User names and
 * passwords end with the run unless the operator has them remembered.
 */
class SourceBook
{
public:
    using Addresses = QMap<QString, QString>; ///< by channel id

    /// The file of this user's workbench.
    static QString usualFile();
    /// @p given without blanks around it, the path of a file made absolute.
    static QString absolute(const QString& given);
    /// Whether @p source is an address that tells a user name or a password.
    static bool holdsLogin(const QString& source);

    /// Reads what @p file keeps, and writes every later change to it. A login that nobody had
    /// remembered leaves the file at once, and this book at the end of the run.
    void keepIn(const QString& file);

    bool remembersLogins() const { return m_remembersLogins; }
    void setRemembersLogins(bool remembers);

    const Addresses& addresses() const { return m_addresses; }
    /// Puts @p addresses over the others for this run only.
    void overlay(const Addresses& addresses);
    void setAddresses(const Addresses& addresses);

    /// The newest first.
    const QStringList& recent() const { return m_recent; }
    void addRecent(const QString& source);

    /// Why the last change is not in the file, in one line; empty when it is.
    const QString& error() const { return m_error; }

private:
    QString kept(const QString& source) const;
    SourcesFile keptFile();
    void write(SourcesFile file);

    QString m_file; ///< empty: nothing is kept
    QString m_error;
    QString m_damage; ///< why the file is not written over
    bool m_remembersLogins = false;
    Addresses m_addresses;
    QStringList m_recent;
};
