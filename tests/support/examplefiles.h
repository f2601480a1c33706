#pragma once

#include <QDir>
#include <QFile>

/// The documents that come with the module.
namespace ExampleFiles
{

/// The folder of an example, with the bar at its end.
inline QString folder(const QString& name = "perimeter")
{
    return QString(RULES_SOURCE_DIR "/examples/%1/").arg(name);
}

inline QStringList names()
{
    QStringList found =
        QDir(RULES_SOURCE_DIR "/examples").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    found.removeOne("client");
    return found;
}

inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace ExampleFiles
