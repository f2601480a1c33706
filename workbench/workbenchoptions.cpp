#include "workbench/workbenchoptions.h"

#include "host/api/wholefile.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace WholeFile = UICommonMdl::WholeFile;

namespace
{

/// The same for all ways to name a file, which need not be there.
QString placeOf(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

} // namespace

QStringList WorkbenchOptions::inputs() const
{
    QStringList files{templateFile, configFile, replayFile, source, pluginFile};
    files += channelSources.values();
    files.removeAll(QString());
    return files;
}

QString WorkbenchOptions::replacedInput(const QString& output) const
{
    const QString replaced = QFileInfo(output).canonicalFilePath();
    for (const QString& input : inputs()) {
        if (!replaced.isEmpty() && replaced == QFileInfo(input).canonicalFilePath())
            return input;
    }
    return {};
}

QString WorkbenchOptions::outputFault() const
{
    const struct {
        const char* name;
        const QString& path;
    } outputs[] = {{"result", resultFile}, {"screenshot", screenshotFile}, {"record", recordFile}};
    QStringList used;
    for (const QString& path : inputs())
        used.append(placeOf(path));
    for (const auto& output : outputs) {
        if (output.path.isEmpty())
            continue;
        if (WholeFile::isForeign(output.path))
            return WholeFile::foreignText(output.path);
        if (used.contains(placeOf(output.path)))
            return QCoreApplication::translate("CommandLine",
                                               "--%1 would replace a file that is used already: %2")
                .arg(QString::fromLatin1(output.name), output.path);
        used.append(placeOf(output.path));
    }
    return {};
}
