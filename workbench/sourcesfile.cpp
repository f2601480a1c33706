#include "workbench/sourcesfile.h"

#include "host/wholefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

namespace
{

// Bounds what a damaged file makes us read.
constexpr int kMostChannels = 10000;
constexpr QFile::Permissions kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

const auto kSources = QStringLiteral("sources");
const auto kChannel = QStringLiteral("channel");
const auto kAddress = QStringLiteral("address");
const auto kRecent = QStringLiteral("recent");
const auto kRemember = QStringLiteral("rememberLogins");

/// False when it cannot all be written.
bool store(const SourcesFile& content, const QString& path)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    settings.setValue(kRecent, content.recent);
    settings.setValue(kRemember, content.remembersLogins);
    settings.beginWriteArray(kSources, content.addresses.size());
    int index = 0;
    for (auto i = content.addresses.begin(); i != content.addresses.end(); ++i) {
        settings.setArrayIndex(index++);
        settings.setValue(kChannel, i.key());
        settings.setValue(kAddress, i.value());
    }
    settings.endArray();
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace

void SourcesFile::read(const QString& path)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    addresses.clear();
    const int count = qMin(settings.beginReadArray(kSources), kMostChannels);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        const QString channel = settings.value(kChannel).toString();
        const QString address = settings.value(kAddress).toString();
        if (!channel.isEmpty() && !address.isEmpty())
            addresses.insert(channel, address);
    }
    settings.endArray();
    recent = settings.value(kRecent).toStringList();
    recent.removeAll({});
    remembersLogins = settings.value(kRemember).toBool();
}

// Written elsewhere first: on a full disk settings replace their own file by an empty one.
bool SourcesFile::write(const QString& path, QString& error) const
{
    const QTemporaryDir folder; // which only this user can enter
    QFile draft(folder.filePath(QStringLiteral("sources.ini")));
    if (!folder.isValid() || !store(*this, draft.fileName()) || !draft.open(QIODevice::ReadOnly)) {
        error =
            QCoreApplication::translate("SourcesFile", "%1: no room for it; the old file stands")
                .arg(path);
        return false;
    }
    QDir().mkpath(QFileInfo(path).absolutePath());
    return UICommonMdl::WholeFile::write(path, draft.readAll(), error, kOwnerOnly);
}
