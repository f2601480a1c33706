#include "Protocol/lanes/lanesreader.h"

#include "Protocol/configmember.h"
#include "Protocol/entrylist.h"
#include "Protocol/entryreader.h"
#include "Protocol/figurereader.h"
#include "Protocol/jsonpath.h"
#include "Protocol/lanes/lanerules.h"
#include "Protocol/lanes/lanesdata.h"
#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/validity.h"
#include "host/json/value.h"

#include <utility>

using kql::Json::Value;

namespace
{

constexpr int kLinePoints = 2;

/// Reads one lane after another.
class LaneReader
{
public:
    LaneReader(LanesData& data, const Value& document)
        : m_data(data),
          m_rules(*data.lanesTemplate(), document),
          m_laneReader(data, data.lanesTemplate()->name()),
          m_ruleReader(data, ConfigMember::kRuleSection, &m_laneReader)
    {
    }

    void read(const Value& json, int index);
    QStringList otherRuleNames() const;

private:
    const DrawItem* readLines(const Value& json, const RuleDataInfo& entry);
    void readRule(const Value* rule, RuleDataInfo& entry, const DrawItem* lane);

    LanesData& m_data;
    LaneRules m_rules;
    EntryReader m_laneReader;
    EntryReader m_ruleReader;
};

void LaneReader::read(const Value& json, int index)
{
    auto entry = m_data.newDataInfo();
    entry->setSourceIndex(index);
    const DrawItem* lane = readLines(json, *entry);
    m_laneReader.read(json, *entry);
    readRule(m_rules.ruleOf(index), *entry, lane);
    Validity::update(*m_data.getTemplate(), *entry);
    m_data.addDataInfo(std::move(entry));
}

QStringList LaneReader::otherRuleNames() const
{
    QStringList names;
    for (const Value* rule : m_rules.unpaired())
        names.append((*rule)[ConfigMember::kName].asString());
    return names;
}

const DrawItem* LaneReader::readLines(const Value& json, const RuleDataInfo& entry)
{
    const auto left = PointConversion::toPoints(json[ConfigMember::kLeftLine]);
    const auto right = PointConversion::toPoints(json[ConfigMember::kRightLine]);
    if (left.size() != kLinePoints || right.size() != kLinePoints)
        return nullptr;
    const RuleProtocolItem& item = *m_data.lanesTemplate()->laneItem();
    return FigureReader(m_data).add(item, entry, left + right, item.caption());
}

void LaneReader::readRule(const Value* rule, RuleDataInfo& entry, const DrawItem* lane)
{
    if (rule)
        m_ruleReader.readRule(*rule, entry, lane);
    // A rule without a lane number belongs to its lane all the same.
    const LanesTemplate& dataTemplate = *m_data.lanesTemplate();
    const RuleProtocolItem* number = dataTemplate.ruleLaneNumberItem();
    const bool hasNumber =
        rule && number && (entry.value(number->key()).isValid() || entry.asRead(number->key()));
    if (number && !hasNumber)
        entry.setValue(number->key(), entry.value(dataTemplate.numberItem()->key()));
}

} // namespace

void LanesReader::read(LanesData& data, const Value& document)
{
    const auto entries =
        EntryList::getJsonItemList(JsonPath(data.getTemplate()->parent()).readPath(document));
    LaneReader reader(data, document);
    for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
        if (const Value* json = EntryList::object(entries, i))
            reader.read(*json, i);
    }
    data.setOtherRuleNames(reader.otherRuleNames());
}
