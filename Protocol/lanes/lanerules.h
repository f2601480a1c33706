#pragma once

#include "Protocol/jsonpath.h"

#include <QHash>

class LanesTemplate;

/**
 * Which rule belongs to which lane, where rules are edited per lane: one to one, by lane number,
 * the rest in order. Works on the document as read, so that reader and writer agree.
 */
class LaneRules
{
public:
    /// Pairs the lanes and rules of @p document, which must outlive this.
    LaneRules(const LanesTemplate& dataTemplate, const kql::Json::Value& document);

    /// The rule of the lane at @p laneIndex in the document; null when it has none.
    const kql::Json::Value* ruleOf(int laneIndex) const { return m_ruleOfLane.value(laneIndex); }
    /// Rules that no lane has, in order.
    const JsonEntries& unpaired() const { return m_unpaired; }

private:
    QHash<int, const kql::Json::Value*> m_ruleOfLane;
    JsonEntries m_unpaired;
};
