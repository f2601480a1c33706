#include "workbench/sourcesfile.h"

#include "host/api/wholefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

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

bool isHexDigit(QChar c)
{
    return QStringLiteral("0123456789abcdefABCDEF").contains(c);
}

/// As QSettings reads it: a digit after an escaped character would count as a part of it, and "@"
/// begins what is no text.
QString quoted(const QString& text)
{
    QString result(QLatin1Char('"'));
    if (text.startsWith(QLatin1Char('@')))
        result += QLatin1Char('@');
    bool isAfterEscape = false;
    for (const QChar c : text) {
        isAfterEscape = c < QLatin1Char(' ') || (isAfterEscape && isHexDigit(c));
        if (isAfterEscape)
            result += QStringLiteral("\\x") + QString::number(c.unicode(), 16);
        else if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
            result += QLatin1Char('\\') + QString(c);
        else
            result += c;
    }
    return result + QLatin1Char('"');
}

QString damageText(const QString& path)
{
    return QCoreApplication::translate("SourcesFile",
                                       "%1: cannot be read as a whole; it has to be mended or "
                                       "removed before sources are kept again")
        .arg(path);
}

} // namespace

void SourcesFile::read(const QString& path)
{
    QSettings settings(path, QSettings::IniFormat);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // which reads nothing but UTF-8
    settings.setIniCodec("UTF-8");
#endif
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
    damage = settings.status() == QSettings::NoError ? QString() : damageText(path);
}

// Not by QSettings, which replaces the old file by an empty one when its lock took the last room.
bool SourcesFile::write(const QString& path, QString& error) const
{
    QStringList texts;
    for (const QString& source : recent)
        texts.append(quoted(source));
    QString content =
        QStringLiteral("[General]\n%1=%2\n%3=%4\n\n[%5]\nsize=%6\n")
            .arg(kRecent, texts.join(QStringLiteral(", ")), kRemember,
                 QVariant(remembersLogins).toString(), kSources, QString::number(addresses.size()));
    int number = 0;
    for (auto i = addresses.begin(); i != addresses.end(); ++i) {
        const QString start = QString::number(++number) + QLatin1Char('\\');
        content += start + kChannel + QLatin1Char('=') + quoted(i.key()) + QLatin1Char('\n') +
                   start + kAddress + QLatin1Char('=') + quoted(i.value()) + QLatin1Char('\n');
    }
    const QFileInfo old(path);
    QDir().mkpath(old.absolutePath());
    QByteArray bytes = content.toUtf8();
    // By size and time QSettings tells whether to read it anew, and two may be written at one time.
    if (old.size() == bytes.size())
        bytes += '\n';
    return UICommonMdl::WholeFile::write(path, bytes, error, kOwnerOnly);
}
