#include "Protocol/detection/detectionreader.h"

#include "Protocol/datatemplate.h"
#include "Protocol/detection/detectionentries.h"
#include "Protocol/entryreader.h"
#include "Protocol/figurereader.h"
#include "Protocol/jsonpath.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/validity.h"
#include "host/json/value.h"

#include <utility>

using kql::Json::Value;

namespace
{

void readEntry(RuleData& data, const EntryReader& reader, const Value& json, int index)
{
    const auto figureItems = data.getTemplate()->figureItems();
    const bool isPoints = json.isArray();
    if (isPoints ? figureItems.isEmpty() : !json.isObject())
        return;
    // Kept so that ids step by two, as devices expect.
    RuleParser::createId();
    auto entry = data.newDataInfo();
    entry->setSourceIndex(index);
    if (isPoints) {
        const RuleProtocolItem& item = *figureItems.first();
        FigureReader(data).add(item, *entry, PointConversion::toPoints(json), item.caption());
    } else {
        reader.read(json, *entry);
    }
    Validity::update(*data.getTemplate(), *entry);
    data.addDataInfo(std::move(entry));
}

} // namespace

void DetectionReader::read(RuleData& data, const Value& document)
{
    const JsonPath parent(data.getTemplate()->parent());
    const auto entries = DetectionEntries::of(parent.readPath(document));
    const EntryReader reader(data, data.getTemplate()->name());
    for (int i = 0; i < static_cast<int>(entries.size()); ++i)
        readEntry(data, reader, *entries[static_cast<std::size_t>(i)], i);
}
