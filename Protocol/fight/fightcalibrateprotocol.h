#pragma once

#include "Protocol/sceneprotocol.h"

/**
 * The areas that fights are calibrated in, and the rectangles inside them: an entry is
 * {"CalibrateArea": {"Area": [[x, y], ...], "Rects": [[[x, y], [x, y]], ...]}}. A single rectangle
 * may stand there without the list around it.
 */
class FightCalibrateProtocol final : public SceneProtocol
{
public:
    void read(RuleData& data, const kql::Json::Value& document) const override;
    bool write(const RuleData& data, const TemplateSection& section, const WriteContext& context,
               kql::Json::Value& document) const override
    {
        return writeFightCalibrate(data, section, context, document);
    }
    bool isCalibration() const override { return true; }

private:
    bool writeFightCalibrate(const RuleData& data, const TemplateSection& section,
                             const WriteContext& context, kql::Json::Value& document) const;
};
