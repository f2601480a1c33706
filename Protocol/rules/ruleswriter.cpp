#include "Protocol/rules/ruleswriter.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/entrylist.h"
#include "Protocol/entryname.h"
#include "Protocol/entrytarget.h"
#include "Protocol/entrywriter.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/writecontext.h"

#include <utility>

using kql::Json::Value;

namespace
{

// Algorithms with this id tell their rules apart by "Config"."Type".
constexpr int kTypedAlgorithm = 1;

void writeAlgorithm(const QString& name, Value& json)
{
    Value& config = json[ConfigMember::kConfig];
    if (config.isNull() || config.isObject())
        config[ConfigMember::kType] = Value(name);
}

/// Each entry's items in a copy of the skeleton's first entry.
std::vector<Value> writeEntries(const RuleData& data, const WriteContext& context, Value& document)
{
    const DataTemplate& dataTemplate = *data.getTemplate();
    const EntryTarget target(document, dataTemplate.parent());
    const EntryWriter writer(data, dataTemplate.name());
    const Value prototype = writer.prototype(target.prototype());
    const auto sources = EntryList::at(context.configuration, JsonPath(dataTemplate.parent()));
    std::vector<Value> entries;
    entries.reserve(data.getAllData().size());
    for (const auto& entry : data.getAllData()) {
        entries.push_back(prototype);
        writer.write(*entry, EntryList::object(sources, entry->sourceIndex()), entries.back());
    }
    return entries;
}

} // namespace

void RulesWriter::writeRuleMembers(const RuleData& data, int position, const WriteContext& context,
                                   Value& json)
{
    const RuleDataInfo& entry = *data.getAllData()[static_cast<std::size_t>(position)];
    const Value* name = entry.nameAsRead();
    json[ConfigMember::kName] = name ? *name : Value(EntryName::written(data, position));
    const Value* enabled = entry.enabledAsRead();
    json[ConfigMember::kEnable] = enabled ? *enabled : Value(entry.isEnabled());
    if (context.algorithmId == kTypedAlgorithm)
        writeAlgorithm(context.algorithmName, json);
}

bool RulesWriter::writeRule(const RuleData& data, const WriteContext& context, Value& document)
{
    auto entries = writeEntries(data, context, document);
    for (int i = 0; i < data.getDataCount(); ++i)
        writeRuleMembers(data, i, context, entries[static_cast<std::size_t>(i)]);
    return EntryTarget(document, data.getTemplate()->parent()).put(std::move(entries));
}

bool RulesWriter::writeGlobal(const RuleData& data, const WriteContext& context, Value& document)
{
    return EntryTarget(document, data.getTemplate()->parent(), EntryTarget::WhenMissing::Object)
        .put(writeEntries(data, context, document));
}
