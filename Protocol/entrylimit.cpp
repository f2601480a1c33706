#include "Protocol/entrylimit.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/detection/detectionentries.h"
#include "Protocol/entrywriter.h"
#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawscene.h"
#include "host/json/value.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

// What an entry takes beside its text, and what a condition or a check of it takes, in the same.
constexpr int kEntry = 256;
constexpr int kTest = 16;
// What an element takes that an entry may have beside its prototype, and how many it may have.
constexpr int kElement = 32;
constexpr qint64 kMostElements = 1024;

/// An entry of the section that has nothing but its places.
qint64 textOfEmpty(const RuleData& data, const QString& section)
{
    return EntryWriter(data, section).emptyEntry().styledLength();
}

qint64 textOfFirst(const Value& skeleton, const QString& parent)
{
    const Value* first = EntryList::object(EntryList::at(skeleton, JsonPath(parent)), 0);
    return first ? first->styledLength() : 0;
}

qint64 tests(const DataTemplate& dataTemplate)
{
    qint64 count = dataTemplate.checkRules().size();
    for (const auto& item : dataTemplate.items()) {
        for (const ValidCondition& condition : item->validity())
            count += condition.values.size();
    }
    return count;
}

qint64 elements(const DataTemplate& dataTemplate)
{
    qint64 count = 0;
    for (const auto& item : dataTemplate.items())
        count += std::max(item->index(), 0);
    return std::min(count, kMostElements);
}

} // namespace

qint64 EntryLimit::textPerEntry(const RuleData& data, const Value& skeleton)
{
    const DataTemplate& dataTemplate = *data.getTemplate();
    qint64 cost = kEntry + kTest * tests(dataTemplate) + kElement * elements(dataTemplate) +
                  textOfEmpty(data, dataTemplate.name()) +
                  textOfFirst(skeleton, dataTemplate.parent());
    if (const auto* lanes = dynamic_cast<const LanesTemplate*>(&dataTemplate)) {
        cost += textOfEmpty(data, ConfigMember::kRuleSection) +
                textOfFirst(skeleton, lanes->rulesParent());
    }
    return cost;
}

int EntryLimit::countEntries(const RuleData& data, const Value& document)
{
    const JsonPath parent(data.getTemplate()->parent());
    const auto entries = data.getSceneType() == SceneType::Detection
                             ? DetectionEntries::of(parent.probe(document))
                             : EntryList::at(document, parent);
    return static_cast<int>(entries.size());
}

int EntryLimit::countInnerFigures(const RuleData& data)
{
    const bool isCalibration = data.getSceneType() == SceneType::CalibrateArea ||
                               data.getSceneType() == SceneType::FightCalibrate;
    return isCalibration ? data.getDrawScene()->itemCount(BaseDrawType::None, 0) : 0;
}
