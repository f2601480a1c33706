#include "workbench/sourcebook.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace
{

constexpr int kMostRecent = 10;
// Bounds what a damaged file makes us read.
constexpr int kMostChannels = 10000;

const auto kSources = QStringLiteral("sources");
const auto kChannel = QStringLiteral("channel");
const auto kAddress = QStringLiteral("address");
const auto kRecent = QStringLiteral("recent");

} // namespace

QString SourceBook::usualFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/sources.ini");
}

QString SourceBook::absolute(const QString& source)
{
    const bool isFile = !source.isEmpty() && !source.contains(QStringLiteral("://")) &&
                        !source.startsWith(QStringLiteral("sample:"));
    return isFile ? QFileInfo(source).absoluteFilePath() : source;
}

void SourceBook::keepIn(const QString& file)
{
    m_file = file;
    read();
}

void SourceBook::read()
{
    QSettings settings(m_file, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    const int count = qMin(settings.beginReadArray(kSources), kMostChannels);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        const QString channel = settings.value(kChannel).toString();
        const QString address = settings.value(kAddress).toString();
        if (!channel.isEmpty() && !address.isEmpty())
            m_addresses.insert(channel, address);
    }
    settings.endArray();
    m_recent = settings.value(kRecent).toStringList().mid(0, kMostRecent);
    m_recent.removeAll({});
}

void SourceBook::overlay(const Addresses& addresses)
{
    for (auto i = addresses.begin(); i != addresses.end(); ++i)
        m_addresses.insert(i.key(), i.value());
}

void SourceBook::setAddresses(const Addresses& addresses)
{
    m_addresses = addresses;
    writeAddresses();
}

void SourceBook::addRecent(const QString& source)
{
    if (source.isEmpty() || m_recent.value(0) == source)
        return;
    m_recent.removeAll(source);
    m_recent.prepend(source);
    m_recent = m_recent.mid(0, kMostRecent);
    writeRecent();
}

/// Before anything is written, so that it is never readable by others for a moment.
bool SourceBook::makePrivate() const
{
    constexpr QFile::Permissions kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;
    if (m_file.isEmpty() || !QDir().mkpath(QFileInfo(m_file).absolutePath()))
        return false;
    QFile file(m_file);
    return file.open(QIODevice::Append) && file.setPermissions(kOwnerOnly);
}

void SourceBook::writeAddresses() const
{
    if (!makePrivate())
        return;
    QSettings settings(m_file, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    settings.remove(kSources);
    settings.beginWriteArray(kSources, m_addresses.size());
    int index = 0;
    for (auto i = m_addresses.begin(); i != m_addresses.end(); ++i) {
        settings.setArrayIndex(index++);
        settings.setValue(kChannel, i.key());
        settings.setValue(kAddress, i.value());
    }
    settings.endArray();
}

void SourceBook::writeRecent() const
{
    if (!makePrivate())
        return;
    QSettings settings(m_file, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    settings.setValue(kRecent, m_recent);
}
