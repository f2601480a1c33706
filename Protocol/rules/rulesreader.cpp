#include "Protocol/rules/rulesreader.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entrylist.h"
#include "Protocol/entryreader.h"
#include "Protocol/jsonpath.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/validity.h"
#include "host/json/value.h"

#include <utility>

using kql::Json::Value;

namespace
{

void readEntry(RuleData& data, const EntryReader& reader, const Value& json, int index)
{
    // Kept so that ids step by two, as devices expect.
    RuleParser::createId();
    auto entry = data.newDataInfo();
    entry->setSourceIndex(index);
    if (data.getSceneType() == SceneType::Rules)
        reader.readRule(json, *entry);
    else
        reader.read(json, *entry);
    Validity::update(*data.getTemplate(), *entry);
    data.addDataInfo(std::move(entry));
}

} // namespace

void RulesReader::read(RuleData& data, const Value& document)
{
    const DataTemplate& dataTemplate = *data.getTemplate();
    const auto entries =
        EntryList::getJsonItemList(JsonPath(dataTemplate.parent()).readPath(document));
    const EntryReader reader(data, dataTemplate.name());
    data.reserve(entries.size());
    for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
        if (const Value* json = EntryList::object(entries, i))
            readEntry(data, reader, *json, i);
    }
}
