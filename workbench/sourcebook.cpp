#include "workbench/sourcebook.h"

#include "host/maskedaddress.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

namespace
{

constexpr int kMostRecent = 10;
// Bounds what a damaged file makes us read.
constexpr int kMostChannels = 10000;

const auto kSources = QStringLiteral("sources");
const auto kChannel = QStringLiteral("channel");
const auto kAddress = QStringLiteral("address");
const auto kRecent = QStringLiteral("recent");
const auto kRemember = QStringLiteral("rememberLogins");

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

bool SourceBook::holdsLogin(const QString& source)
{
    return UICommonMdl::maskedAddress(source) != source && !QFileInfo::exists(source);
}

void SourceBook::keepIn(const QString& file)
{
    m_file = file;
    const Addresses kept = read();
    const bool hasLogin = std::any_of(kept.begin(), kept.end(), &SourceBook::holdsLogin) ||
                          std::any_of(m_recent.begin(), m_recent.end(), &SourceBook::holdsLogin);
    if (hasLogin && !m_remembersLogins) {
        writeAddresses(kept);
        writeRecent();
    }
    overlay(kept);
}

void SourceBook::setRemembersLogins(bool remembers)
{
    m_remembersLogins = remembers;
    writeRecent();
}

SourceBook::Addresses SourceBook::read()
{
    Addresses addresses;
    QSettings settings(m_file, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    const int count = qMin(settings.beginReadArray(kSources), kMostChannels);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        const QString channel = settings.value(kChannel).toString();
        const QString address = settings.value(kAddress).toString();
        if (!channel.isEmpty() && !address.isEmpty())
            addresses.insert(channel, address);
    }
    settings.endArray();
    m_remembersLogins = settings.value(kRemember).toBool();
    m_recent = settings.value(kRecent).toStringList().mid(0, kMostRecent);
    m_recent.removeAll({});
    return addresses;
}

void SourceBook::overlay(const Addresses& addresses)
{
    for (auto i = addresses.begin(); i != addresses.end(); ++i)
        m_addresses.insert(i.key(), i.value());
}

void SourceBook::setAddresses(const Addresses& addresses)
{
    m_addresses = addresses;
    writeAddresses(addresses);
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

/// What the file says of @p source; empty when it may say nothing.
QString SourceBook::kept(const QString& source) const
{
    return m_remembersLogins || !holdsLogin(source) ? source
                                                    : UICommonMdl::addressWithoutLogin(source);
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

void SourceBook::writeAddresses(const Addresses& addresses) const
{
    if (!makePrivate())
        return;
    QSettings settings(m_file, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    settings.remove(kSources);
    settings.beginWriteArray(kSources);
    int index = 0;
    for (auto i = addresses.begin(); i != addresses.end(); ++i) {
        const QString address = kept(i.value());
        if (address.isEmpty())
            continue;
        settings.setArrayIndex(index++);
        settings.setValue(kChannel, i.key());
        settings.setValue(kAddress, address);
    }
    settings.endArray();
}

void SourceBook::writeRecent() const
{
    if (!makePrivate())
        return;
    QSettings settings(m_file, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    QStringList recent;
    for (const QString& source : m_recent)
        recent.append(kept(source));
    recent.removeAll({});
    recent.removeDuplicates();
    settings.setValue(kRecent, recent);
    settings.setValue(kRemember, m_remembersLogins);
}
