#include "workbench/parameterblock.h"

#include "host/json/value.h"
#include "workbench/documentfile.h"
#include "workbench/workbenchoptions.h"

#include <QCoreApplication>

namespace ParameterBlock
{

namespace
{

constexpr char kConfiguration[] = "channelAbilityPO";

bool readTemplate(const QString& path, kql::Json::Value& document, QString& error)
{
    if (!DocumentFile::read(path, document, error))
        return false;
    if (document.isMember("configDescription"))
        return true;
    error = QCoreApplication::translate("ParameterBlock",
                                        "%1:1:1: the template has no \"configDescription\"")
                .arg(path);
    return false;
}

/// Reads a configuration, or a result of an earlier save, which has it in one of its members.
bool readConfiguration(const QString& path, kql::Json::Value& config, QString& error)
{
    if (!DocumentFile::read(path, config, error))
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

} // namespace

QString build(const WorkbenchOptions& options, QString& error)
{
    kql::Json::Value block(kql::Json::ValueType::Object);
    kql::Json::Value rulesTemplate;
    kql::Json::Value config(kql::Json::ValueType::Object);
    if (!readTemplate(options.templateFile, rulesTemplate, error))
        return {};
    if (!options.configFile.isEmpty() && !readConfiguration(options.configFile, config, error))
        return {};
    block["algorithmId"] = options.algorithmId;
    block["algorithmType"] = options.algorithmType;
    block["algorithmCode"] = options.algorithmCode;
    block["channalId"] = options.channelId;
    block["channelName"] = options.channelName;
    block["selectionMode"] = options.selectionMode;
    if (options.editable)
        block["editable"] = *options.editable;
    block["videoConfigRuleProperty"] = std::move(rulesTemplate);
    block[kConfiguration] = std::move(config);
    return block.toStyledText();
}

} // namespace ParameterBlock
