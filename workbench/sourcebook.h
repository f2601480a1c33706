#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/**
 * The addresses of the channels' pictures, and the sources that were shown last. They are kept
 * from run to run once keepIn() was called, in a file that only its user can read: addresses hold
 * passwords.
 */
class SourceBook
{
public:
    using Addresses = QMap<QString, QString>; ///< by channel id

    /// The file of this user's workbench.
    static QString usualFile();
    /// @p source with the path of a file made absolute.
    static QString absolute(const QString& source);

    /// Reads what @p file keeps, and writes every later change to it.
    void keepIn(const QString& file);

    const Addresses& addresses() const { return m_addresses; }
    /// Puts @p addresses over the others for this run only.
    void overlay(const Addresses& addresses);
    void setAddresses(const Addresses& addresses);

    /// The newest first.
    const QStringList& recent() const { return m_recent; }
    void addRecent(const QString& source);

private:
    void read();
    bool makePrivate() const;
    void writeAddresses() const;
    void writeRecent() const;

    QString m_file; ///< empty: nothing is kept
    Addresses m_addresses;
    QStringList m_recent;
};
