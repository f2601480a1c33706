#include "Protocol/sceneprotocol.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/entrywriter.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/validity.h"

#include <utility>

using kql::Json::Value;

void SceneProtocol::readEntries(RuleData& data, const Value& document,
                                const ReadEntry& readEntry) const
{
    const JsonPath parent(data.getTemplate()->parent());
    const JsonEntries listed = entriesAt(parent.readPath(document));
    for (std::size_t i = 0; i < listed.size(); ++i) {
        auto entry = newEntry(data, *listed[i]);
        if (!entry)
            continue;
        entry->setSourceIndex(static_cast<int>(i));
        readEntry(*listed[i], *entry);
        Validity::update(*data.getTemplate(), *entry);
        data.addDataInfo(std::move(entry));
    }
}

std::unique_ptr<RuleDataInfo> SceneProtocol::newEntry(const RuleData& data, const Value& json) const
{
    return json.isObject() ? data.newDataInfo() : nullptr;
}

std::vector<Value> SceneProtocol::writeEntries(const RuleData& data, const TemplateSection& section,
                                               const WriteContext& context, const Value& document,
                                               const WriteEntry& writeEntry) const
{
    const EntryWriter writer(data, section.name);
    const Value prototype = writer.prototype(JsonPath(section.parent).firstEntryIn(document));
    const JsonEntries asRead = sources(data, section, context.configuration);
    std::vector<Value> entries;
    entries.reserve(asRead.size());
    for (const auto& entry : data.getAllData()) {
        const Value* const source = asRead[entries.size()];
        entries.push_back(prototype);
        writeEntry(writer, *entry, source, entries.back());
    }
    return entries;
}

std::vector<Value> SceneProtocol::writeEntries(const RuleData& data, const TemplateSection& section,
                                               const WriteContext& context,
                                               const Value& document) const
{
    return writeEntries(data, section, context, document,
                        [](const EntryWriter& writer, const RuleDataInfo& entry,
                           const Value* asRead,
                           Value& json) { writer.write(entry, asRead, json); });
}

bool SceneProtocol::put(std::vector<Value> entries, const TemplateSection& section,
                        Value& document) const
{
    return EntryTarget(document, section.parent, whenMissing()).put(std::move(entries));
}

Value SceneProtocol::copiedPart(const Value&) const
{
    return {};
}

void SceneProtocol::setApart(const RuleData& data, RuleDataInfo& entry) const
{
    if (!EntryName::areKept(data) || entry.nameAsRead())
        return;
    const QString name =
        entry.name().isEmpty() ? EntryName::written(data, data.getDataCount()) : entry.name();
    entry.setName(EntryName::ofCopy(data, name));
}

RuleProtocolItem* SceneProtocol::entryFigureItem(const DataTemplate& dataTemplate) const
{
    return dataTemplate.figureItems().value(0);
}

JsonEntries SceneProtocol::entriesAt(const Value* place) const
{
    return getJsonItemList(place);
}

JsonEntries SceneProtocol::sources(const RuleData& data, const TemplateSection& section,
                                   const Value& document) const
{
    const JsonEntries listed = entriesAt(JsonPath(section.parent).find(document));
    JsonEntries sources;
    for (const auto& entry : data.getAllData()) {
        const auto index = static_cast<std::size_t>(entry->sourceIndex());
        sources.push_back(index < listed.size() ? listed[index] : entry->source());
    }
    return sources;
}

JsonEntries SceneProtocol::keptAside(const RuleData&, const TemplateSection&, const Value&) const
{
    return {};
}
