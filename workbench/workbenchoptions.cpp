#include "workbench/workbenchoptions.h"

#include "host/api/wholefile.h"
#include "host/json/value.h"
#include "workbench/documentfile.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace WholeFile = UICommonMdl::WholeFile;

namespace
{

constexpr char kConfiguration[] = "channelAbilityPO";

bool readTemplate(const QString& path, kql::Json::Value& document, QString& error,
                  DocumentFile::Digest& digest)
{
    if (!DocumentFile::read(path, document, error, &digest))
        return false;
    if (document.isMember("configDescription"))
        return true;
    error = QCoreApplication::translate("ParameterBlock",
                                        "%1:1:1: the template has no \"configDescription\"")
                .arg(path);
    return false;
}

/// Reads a configuration, or a result of an earlier save, which has it in one of its members.
bool readConfiguration(const QString& path, kql::Json::Value& config, QString& error,
                       DocumentFile::Digest& digest)
{
    if (!DocumentFile::read(path, config, error, &digest))
        return false;
    if (!config.isMember("result") || !config.isMember("algorithmId"))
        return true;
    if (!config.isMember(kConfiguration)) {
        error = QCoreApplication::translate(
                    "ParameterBlock", "%1:1:1: nothing was saved, so there is no configuration")
                    .arg(path);
        return false;
    }
    config = kql::Json::Value(config[kConfiguration]);
    return true;
}

/// The same for all ways to name a file, which need not be there.
QString placeOf(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

} // namespace

QString WorkbenchOptions::sampleName()
{
    return QCoreApplication::translate("WorkbenchWindow", "Sample camera");
}

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

QString WorkbenchOptions::parameterBlock(QString& error, QString* digest) const
{
    kql::Json::Value block(kql::Json::ValueType::Object);
    kql::Json::Value rulesTemplate;
    kql::Json::Value config(kql::Json::ValueType::Object);
    DocumentFile::Digest read;
    if (!readTemplate(templateFile, rulesTemplate, error, read))
        return {};
    if (configFile.isEmpty())
        read.add({});
    else if (!readConfiguration(configFile, config, error, read))
        return {};
    if (digest)
        *digest = read.text();
    block["algorithmId"] = algorithmId;
    block["algorithmType"] = algorithmType;
    block["algorithmCode"] = algorithmCode;
    block["channalId"] = channelId;
    block["channelName"] = channelName;
    block["selectionMode"] = selectionMode;
    if (editable)
        block["editable"] = *editable;
    block["videoConfigRuleProperty"] = std::move(rulesTemplate);
    block[kConfiguration] = std::move(config);
    const QString text = block.toStyledText();
    if (text.isEmpty()) {
        const bool isTemplate = block["videoConfigRuleProperty"].toStyledText().isEmpty();
        error = QCoreApplication::translate("ParameterBlock", "%1: it is too long")
                    .arg(isTemplate || configFile.isEmpty() ? templateFile : configFile);
    }
    return text;
}
