#include "workbench/supportfile.h"

#include "host/api/wholefile.h"
#include "host/json/reader.h"
#include "host/json/value.h"
#include "workbench/documentfile.h"
#include "workbench/messagerecord.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QProcess>
#include <QScreen>
#include <QSysInfo>
#include <QTemporaryDir>

namespace
{

const auto kFolder = QStringLiteral("rules-workbench-support");

/// A document that can be read as it was read: what is hidden in its comments stays here. Else each
/// line by itself, as an address hides what follows it.
QString masked(const QString& text)
{
    kql::Json::Value document;
    if (kql::Json::Reader().parse(text, document)) {
        MessageRecord::mask(document);
        return document.toStyledText();
    }
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines) {
        kql::Json::Value step;
        const bool isStep = kql::Json::Reader().parse(line, step);
        if (isStep)
            MessageRecord::mask(step);
        line = isStep ? step.toCompactText() : MessageRecord::masked(line);
    }
    return lines.join(QLatin1Char('\n'));
}

/// By the tool that each system has.
bool pack(const QDir& folder, const QString& archive, QString& error)
{
    QProcess tar;
    tar.setWorkingDirectory(folder.path());
    tar.setProcessChannelMode(QProcess::MergedChannels);
    tar.start(QStringLiteral("tar"), {QStringLiteral("-czf"), archive, kFolder});
    if (tar.waitForFinished(-1) && tar.exitStatus() == QProcess::NormalExit && tar.exitCode() == 0)
        return true;
    const QString said = QString::fromLocal8Bit(tar.readAll()).simplified();
    error = QCoreApplication::translate("SupportFile", "It cannot be packed: %1")
                .arg(said.isEmpty() ? tar.errorString() : said);
    return false;
}

} // namespace

void SupportFile::addText(const QString& name, const QString& text)
{
    if (!text.isEmpty())
        m_parts.append({name, text, {}});
}

void SupportFile::addFile(const QString& name, const QString& path)
{
    if (!path.isEmpty())
        m_parts.append({name, {}, path});
}

void SupportFile::addPlatform()
{
    QStringList lines{QCoreApplication::applicationName() + QLatin1Char(' ') +
                          QCoreApplication::applicationVersion(),
                      QStringLiteral("Qt %1, built with %2")
                          .arg(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR)),
                      QSysInfo::prettyProductName() + QStringLiteral(", ") +
                          QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion() +
                          QStringLiteral(", ") + QSysInfo::currentCpuArchitecture(),
                      QStringLiteral("platform %1, locale %2")
                          .arg(QGuiApplication::platformName(), QLocale().name())};
    for (const QScreen* screen : QGuiApplication::screens())
        lines.append(QStringLiteral("screen %1x%2, %3 dots an inch, ratio %4")
                         .arg(screen->size().width())
                         .arg(screen->size().height())
                         .arg(screen->logicalDotsPerInch())
                         .arg(screen->devicePixelRatio()));
    addText(QStringLiteral("platform.txt"), lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

bool SupportFile::write(const QString& path, QString& error,
                        const std::function<bool()>& isLeft) const
{
    const QTemporaryDir temporary;
    const QDir folder(temporary.path());
    if (!temporary.isValid()) {
        error = temporary.errorString();
        return false;
    }
    if (!folder.mkdir(kFolder)) {
        error = QCoreApplication::translate("SupportFile", "%1: the folder cannot be made")
                    .arg(folder.filePath(kFolder));
        return false;
    }
    for (const Part& part : m_parts) {
        QByteArray bytes = part.text.toUtf8();
        QString why;
        if (!part.path.isEmpty() && !DocumentFile::readBytes(part.path, bytes, why))
            bytes = why.toUtf8();
        const QString text = masked(QString::fromUtf8(bytes));
        const QString file = folder.filePath(kFolder + QLatin1Char('/') + part.name);
        if (!UICommonMdl::WholeFile::write(file, text.toUtf8(), error))
            return false;
    }
    const QString archive = folder.filePath(QStringLiteral("support.tar.gz"));
    if (!pack(folder, archive, error))
        return false;
    QFile packed(archive);
    if (!packed.open(QIODevice::ReadOnly)) {
        error = packed.errorString();
        return false;
    }
    if (isLeft && isLeft())
        return false;
    return UICommonMdl::WholeFile::write(path, packed.readAll(), error);
}
