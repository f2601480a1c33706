#include "host/api/skin.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace UICommonMdl
{
namespace
{

QStringList skinFolders()
{
    QStringList folders;
    const QString chosen = qEnvironmentVariable("KQ_SKIN_DIR");
    if (!chosen.isEmpty())
        folders.append(chosen);
    if (!QCoreApplication::instance())
        return folders;
    folders.append(QCoreApplication::applicationDirPath() + QStringLiteral("/skin"));
    const QStringList libraryPaths = QCoreApplication::libraryPaths();
    for (const QString& path : libraryPaths)
        folders.append(path + QStringLiteral("/skin"));
    return folders;
}

} // namespace

QString GetSkinPath(const QString& module, const QString& file)
{
    const QString name = QLatin1Char('/') + module + QLatin1Char('/') + file;
    const QStringList folders = skinFolders();
    for (const QString& folder : folders) {
        if (QFileInfo(folder + name).isFile())
            return folder + name;
    }
    return QStringLiteral(":/skin") + name;
}

bool loadStyleSheet(const QString& path, QString& text)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    text = QString::fromUtf8(file.readAll());
    return true;
}

} // namespace UICommonMdl
