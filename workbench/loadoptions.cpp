#include "workbench/loadoptions.h"

#include "host/json/value.h"
#include "workbench/workbenchoptions.h"

namespace LoadOptions
{

void apply(const kql::Json::Value& step,
           const std::function<QString(const kql::Json::Value&)>& file, WorkbenchOptions& options)
{
    const auto takeFile = [&](const char* name, QString& target) {
        if (step.isMember(name))
            target = step[name].isNull() ? QString() : file(step[name]);
    };
    const auto takeText = [&](const char* name, QString& target) {
        if (step.isMember(name))
            target = step[name].asString();
    };
    takeFile("template", options.templateFile);
    takeFile("config", options.configFile);
    takeFile("picture", options.source);
    takeFile("source", options.source);
    takeText("channel", options.channelId);
    takeText("name", options.channelName);
    takeText("algorithm", options.algorithmId);
    takeText("code", options.algorithmCode);
    if (step.isMember("type"))
        options.algorithmType = step["type"].asInt();
    if (step.isMember("selection-mode"))
        options.selectionMode = step["selection-mode"].asBool();
    if (step.isMember("editable"))
        options.editable = step["editable"].isNull()
                               ? std::nullopt
                               : std::optional<bool>(step["editable"].asBool());
}

} // namespace LoadOptions
