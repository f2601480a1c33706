#include "workbench/workbenchoptions.h"

#include "host/wholefile.h"

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

QString WorkbenchOptions::replacedDocument() const
{
    const QString result = QFileInfo(resultFile).canonicalFilePath();
    for (const QString& document : {templateFile, configFile}) {
        if (!result.isEmpty() && result == QFileInfo(document).canonicalFilePath())
            return document;
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
    for (const QString& path : {templateFile, configFile, replayFile, source, pluginFile})
        used.append(path.isEmpty() ? QString() : placeOf(path));
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
