#include "Protocol/entrylimit.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/detectionentries.h"
#include "Protocol/entrywriter.h"
#include "Protocol/lanestemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawscene.h"
#include "host/value.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

// All entries of a scene together, in characters of the text that they are written as: half of what
// a document may have.
constexpr int kMostText = 64 << 20;
// What an entry takes beside its text, and what a condition or a check of it takes, in the same.
constexpr int kEntry = 256;
constexpr int kTest = 16;

/// An entry of the section that has nothing but its places.
int textOfEmpty(const RuleData& data, const QString& section)
{
    return EntryWriter(data, section).emptyEntry().toStyledText().size();
}

int textOfFirst(const Value& skeleton, const QString& parent)
{
    const Value* first = EntryList::object(EntryList::at(skeleton, JsonPath(parent)), 0);
    return first ? first->toStyledText().size() : 0;
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

} // namespace

int EntryLimit::mostEntries(const RuleData& data, const Value& skeleton)
{
    const DataTemplate& dataTemplate = *data.getTemplate();
    qint64 cost = kEntry + kTest * tests(dataTemplate) + textOfEmpty(data, dataTemplate.name()) +
                  textOfFirst(skeleton, dataTemplate.parent());
    if (const auto* lanes = dynamic_cast<const LanesTemplate*>(&dataTemplate)) {
        cost += textOfEmpty(data, ConfigMember::kRuleSection) +
                textOfFirst(skeleton, lanes->rulesParent());
    }
    return static_cast<int>(kMostText / cost);
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
