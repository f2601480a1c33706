#include "Protocol/entrylimit.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryreader.h"
#include "Protocol/entrywriter.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/api/limits.h"
#include "host/json/value.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

// What an entry takes beside its text, and what a condition or a check of it takes, in the same.
constexpr int kEntry = 256;
constexpr int kTest = 16;
// What an element takes that an entry may have beside its prototype.
constexpr int kElement = 32;

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
    return std::min(count, qint64{Limits::kElements});
}

} // namespace

qint64 EntryLimit::textPerEntry(const RuleData& data, const Value& skeleton)
{
    const DataTemplate& dataTemplate = *data.getTemplate();
    qint64 cost = kEntry + kTest * tests(dataTemplate) + kElement * elements(dataTemplate);
    for (const TemplateSection& section : dataTemplate.sections()) {
        const Value* const first = JsonPath(section.parent).firstEntryIn(skeleton);
        cost += EntryWriter(data, section.name).emptyEntry().styledLength();
        cost += first ? first->styledLength() : 0;
    }
    return cost;
}

qint64 EntryLimit::textHeld(const RuleData& data)
{
    qint64 text = 0;
    for (const DrawItem* figure : data.getDrawScene()->getItemList(BaseDrawType::None, 0))
        text += Limits::kFigureText + qint64{Limits::kPointText} * figure->getPoints().size();
    for (const auto& entry : data.getAllData()) {
        text += entry->source() ? entry->source()->styledLength() : 0;
        for (const auto& item : data.getTemplate()->items())
            text += Limits::kValueText + EntryReader::textIn(entry->value(item->key()));
    }
    return text;
}

int EntryLimit::countEntries(const RuleData& data, const Value& document)
{
    const JsonPath parent(data.getTemplate()->parent());
    const SceneProtocol& protocol = sceneProtocol(data.getSceneType());
    return static_cast<int>(protocol.entriesAt(parent.find(document)).size());
}

int EntryLimit::countInnerFigures(const RuleData& data)
{
    return sceneProtocol(data.getSceneType()).isCalibration()
               ? data.getDrawScene()->itemCount(BaseDrawType::None, 0)
               : 0;
}
