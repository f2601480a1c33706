#include "workbench/sourcebook.h"

#include "host/video/maskedaddress.h"
#include "workbench/sourcesfile.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace
{

constexpr int kMostRecent = 10;

} // namespace

QString SourceBook::usualFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/sources.ini");
}

QString SourceBook::absolute(const QString& given)
{
    const QString source = given.trimmed();
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
    const SourcesFile found = keptFile();
    m_error = m_damage;
    m_remembersLogins = found.remembersLogins;
    m_recent = found.recent.mid(0, kMostRecent);
    const auto holdsAny = [](const auto& sources) {
        return std::any_of(sources.begin(), sources.end(), &SourceBook::holdsLogin);
    };
    if (!m_remembersLogins && (holdsAny(found.addresses) || holdsAny(found.recent)))
        write(found);
    overlay(found.addresses);
}

void SourceBook::setRemembersLogins(bool remembers)
{
    m_remembersLogins = remembers;
    SourcesFile file = keptFile();
    file.recent = m_recent;
    write(file);
}

void SourceBook::overlay(const Addresses& addresses)
{
    for (auto i = addresses.begin(); i != addresses.end(); ++i)
        m_addresses.insert(i.key(), i.value());
}

void SourceBook::setAddresses(const Addresses& addresses)
{
    m_addresses = addresses;
    SourcesFile file = keptFile();
    file.addresses = addresses;
    write(file);
}

void SourceBook::addRecent(const QString& source)
{
    if (source.isEmpty() || m_recent.value(0) == source)
        return;
    m_recent.removeAll(source);
    m_recent.prepend(source);
    m_recent = m_recent.mid(0, kMostRecent);
    SourcesFile file = keptFile();
    file.recent = m_recent;
    write(file);
}

/// What the file says of @p source; empty when it may say nothing.
QString SourceBook::kept(const QString& source) const
{
    return m_remembersLogins || !holdsLogin(source) ? source
                                                    : UICommonMdl::addressWithoutLogin(source);
}

SourcesFile SourceBook::keptFile()
{
    SourcesFile file;
    if (!m_file.isEmpty())
        file.read(m_file);
    if (!file.damage.isEmpty())
        m_damage = file.damage;
    return file;
}

/// Writes of @p file what may be kept.
void SourceBook::write(SourcesFile file)
{
    m_error = m_damage;
    if (m_file.isEmpty() || !m_damage.isEmpty())
        return;
    file.remembersLogins = m_remembersLogins;
    for (QString& address : file.addresses)
        address = kept(address);
    for (QString& source : file.recent)
        source = kept(source);
    file.recent.removeAll({});
    file.recent.removeDuplicates();
    file.write(m_file, m_error);
}
