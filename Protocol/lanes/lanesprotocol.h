#pragma once

#include "Protocol/sceneprotocol.h"

/**
 * Vehicle lanes, and their rules where these are edited per lane: a lane is {"LeftLine": [[x, y],
 * [x, y]], "RightLine": [[x, y], [x, y]], ...} with its attributes, its rule lies in a list of its
 * own, see LaneRules.
 */
class LanesProtocol final : public SceneProtocol
{
public:
    void read(RuleData& data, const kql::Json::Value& document) const override;
    bool write(const RuleData& data, const TemplateSection& section, const WriteContext& context,
               kql::Json::Value& document) const override;
    JsonEntries sources(const RuleData& data, const TemplateSection& section,
                        const kql::Json::Value& document) const override;
    JsonEntries keptAside(const RuleData& data, const TemplateSection& section,
                          const kql::Json::Value& document) const override;
    void setApart(const RuleData& data, RuleDataInfo& entry) const override;

private:
    bool writeLanes(const RuleData& data, const TemplateSection& section,
                    const WriteContext& context, kql::Json::Value& document) const;
    bool writeRules(const RuleData& data, const TemplateSection& section,
                    const WriteContext& context, kql::Json::Value& document) const;
};
