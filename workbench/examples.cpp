#include "workbench/examples.h"

#include <QCoreApplication>
#include <QDir>

namespace Examples
{

namespace
{

/// Installed, and in the folder that is built in, they lie the same way from the program.
QDir folder()
{
    return {QCoreApplication::applicationDirPath() +
            QStringLiteral("/../share/rules-workbench/examples")};
}

const struct {
    const char* name;
    const char* title;
} kTitles[] = {
    {"perimeter", QT_TRANSLATE_NOOP("Examples", "Perimeter")},
    {"tripwire", QT_TRANSLATE_NOOP("Examples", "Trip wire")},
    {"traffic", QT_TRANSLATE_NOOP("Examples", "Traffic")},
    {"statistics", QT_TRANSLATE_NOOP("Examples", "Statistics")},
    {"lane-calibration", QT_TRANSLATE_NOOP("Examples", "Lane calibration")},
    {"scene-calibration", QT_TRANSLATE_NOOP("Examples", "Scene calibration")},
    {"fight-calibration", QT_TRANSLATE_NOOP("Examples", "Fight calibration")},
};

} // namespace

QStringList names()
{
    QStringList found;
    for (const auto& example : kTitles) {
        const QString name = QString::fromLatin1(example.name);
        if (QFileInfo::exists(templateFile(name)))
            found.append(name);
    }
    return found;
}

QString title(const QString& name)
{
    for (const auto& example : kTitles) {
        if (name == QLatin1String(example.name))
            return QCoreApplication::translate("Examples", example.title);
    }
    return name;
}

QString templateFile(const QString& name)
{
    return QDir::cleanPath(folder().filePath(name + QStringLiteral("/template.json")));
}

QString configFile(const QString& name)
{
    return QDir::cleanPath(folder().filePath(name + QStringLiteral("/config.json")));
}

} // namespace Examples
