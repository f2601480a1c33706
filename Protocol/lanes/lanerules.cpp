#include "Protocol/lanes/lanerules.h"

#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valueconversion.h"
#include "host/json/value.h"

#include <QQueue>
#include <QVector>
#include <optional>

using kql::Json::Value;

namespace
{

/// A lane or a rule in the pairing.
struct Candidate {
    const Value* json;
    int index; ///< in the document's list
    std::optional<int> number;
    const Value* partner = nullptr;
};
using Candidates = QVector<Candidate>;

constexpr int kLongestNumber = 32; // in characters

std::optional<int> numberIn(const Value& json, const RuleProtocolItem* item)
{
    const Value* found = item ? item->path().find(json) : nullptr;
    if (!found || ValueConversion::styledLength(*found, *item) > kLongestNumber)
        return std::nullopt;
    const QVariant value = ValueConversion::parseJsonToValue(*found, *item);
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

Candidates candidates(const Value& document, const QString& parent, const RuleProtocolItem* number)
{
    Candidates listed;
    const JsonEntries entries = JsonPath(parent).entriesIn(document);
    for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
        if (const Value* json = objectAt(entries, i))
            listed.append({json, i, numberIn(*json, number)});
    }
    return listed;
}

void pair(Candidate& lane, Candidate& rule)
{
    lane.partner = rule.json;
    rule.partner = lane.json;
}

/// Goes before pairing by number, so that rules with one number in common keep their lanes.
void pairByPlace(Candidates& lanes, Candidates& rules)
{
    for (int i = 0; i < lanes.size() && i < rules.size(); ++i) {
        if (lanes[i].number && lanes[i].number == rules[i].number)
            pair(lanes[i], rules[i]);
    }
}

void pairByNumber(Candidates& lanes, Candidates& rules)
{
    QHash<int, QQueue<Candidate*>> free;
    for (Candidate& lane : lanes) {
        if (lane.number && !lane.partner)
            free[*lane.number].enqueue(&lane);
    }
    for (Candidate& rule : rules) {
        if (rule.number && !rule.partner && !free[*rule.number].isEmpty())
            pair(*free[*rule.number].dequeue(), rule);
    }
}

void pairInOrder(Candidates& lanes, Candidates& rules)
{
    auto rule = rules.begin();
    for (Candidate& lane : lanes) {
        while (rule != rules.end() && rule->partner)
            ++rule;
        if (rule != rules.end() && !lane.partner)
            pair(lane, *rule);
    }
}

} // namespace

LaneRules::LaneRules(const LanesTemplate& dataTemplate, const Value& document)
{
    if (!dataTemplate.hasRuleItems())
        return;
    auto lanes = candidates(document, dataTemplate.parent(), dataTemplate.numberItem());
    auto rules = candidates(document, dataTemplate.sections().back().parent,
                            dataTemplate.ruleLaneNumberItem());
    pairByPlace(lanes, rules);
    pairByNumber(lanes, rules);
    pairInOrder(lanes, rules);
    for (const Candidate& lane : qAsConst(lanes)) {
        if (lane.partner)
            m_ruleOfLane.insert(lane.index, lane.partner);
    }
    for (const Candidate& rule : qAsConst(rules)) {
        if (!rule.partner)
            m_unpaired.push_back(rule.json);
    }
}
