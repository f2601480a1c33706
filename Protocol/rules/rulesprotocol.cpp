#include "Protocol/rules/rulesprotocol.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/entryid.h"
#include "Protocol/entryname.h"
#include "Protocol/entryreader.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"

#include <utility>

using kql::Json::Value;

namespace
{

// Algorithms with this id tell their rules apart by "Config"."Type".
constexpr int kTypedAlgorithm = 1;

} // namespace

void GlobalProtocol::read(RuleData& data, const Value& document) const
{
    const EntryReader reader(data, data.getTemplate()->name());
    readEntries(data, document,
                [&](const Value& json, RuleDataInfo& entry) { reader.read(json, entry); });
}

bool GlobalProtocol::writeGlobal(const RuleData& data, const TemplateSection& section,
                                 const WriteContext& context, Value& document) const
{
    return put(writeEntries(data, section, context, document), section, document);
}

std::unique_ptr<RuleDataInfo> GlobalProtocol::newEntry(const RuleData& data,
                                                       const Value& json) const
{
    // Kept so that ids step by two, as devices expect.
    if (json.isObject())
        EntryId::next();
    return SceneProtocol::newEntry(data, json);
}

void RulesProtocol::read(RuleData& data, const Value& document) const
{
    const EntryReader reader(data, data.getTemplate()->name());
    readEntries(data, document,
                [&](const Value& json, RuleDataInfo& entry) { reader.readRule(json, entry); });
}

bool RulesProtocol::writeRule(const RuleData& data, const TemplateSection& section,
                              const WriteContext& context, Value& document) const
{
    std::vector<Value> entries = writeEntries(data, section, context, document);
    writeRuleMembers(data, context, entries);
    return put(std::move(entries), section, document);
}

RuleProtocolItem* RulesProtocol::entryFigureItem(const DataTemplate& dataTemplate) const
{
    return dataTemplate.figureItems().value(0);
}

bool RulesProtocol::isTyped(int algorithmId)
{
    return algorithmId == kTypedAlgorithm;
}

bool RulesProtocol::writeType(const QString& algorithmName, Value& json)
{
    Value& config = json[ConfigMember::kConfig];
    if (!config.isNull() && !config.isObject())
        return false;
    config[ConfigMember::kType] = Value(algorithmName);
    return true;
}

void RulesProtocol::writeRuleMembers(const RuleData& data, const WriteContext& context,
                                     std::vector<Value>& entries)
{
    for (int i = 0; i < data.getDataCount(); ++i) {
        Value& json = entries[static_cast<std::size_t>(i)];
        const RuleDataInfo& entry = *data.getAllData()[static_cast<std::size_t>(i)];
        const Value* name = entry.nameAsRead();
        json[ConfigMember::kName] = name ? *name : Value(EntryName::written(data, i));
        const Value* enabled = entry.enabledAsRead();
        json[ConfigMember::kEnable] = enabled ? *enabled : Value(entry.isEnabled());
        if (isTyped(context.algorithmId))
            writeType(context.algorithmName, json);
    }
}
