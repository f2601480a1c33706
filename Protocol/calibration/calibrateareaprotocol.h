#pragma once

#include "Protocol/sceneprotocol.h"

/**
 * Calibrate areas and their staffs: an entry is {"Area": [[x, y], ...], "Method": "Lane" or
 * "Scene", "Staffs": [{"Type": "Vertical" or "Horizontal", "Length": metres, "Start": [x, y],
 * "End": [x, y]}, ...]}. The length that is shown for a type is that of its first staff.
 */
class CalibrateAreaProtocol final : public SceneProtocol
{
public:
    void read(RuleData& data, const kql::Json::Value& document) const override;
    bool write(const RuleData& data, const TemplateSection& section, const WriteContext& context,
               kql::Json::Value& document) const override
    {
        return writeCalibrateAreaData(data, section, context, document);
    }
    /// The lengths of the staffs, each of which has its own.
    kql::Json::Value copiedPart(const kql::Json::Value& asRead) const override;
    bool isCalibration() const override { return true; }

private:
    bool writeCalibrateAreaData(const RuleData& data, const TemplateSection& section,
                                const WriteContext& context, kql::Json::Value& document) const;
};
