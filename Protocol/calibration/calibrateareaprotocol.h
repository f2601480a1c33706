#pragma once

#include "Protocol/sceneprotocol.h"

/// Calibrate areas and their staffs.
class CalibrateAreaProtocol final : public SceneProtocol
{
public:
    void read(RuleData& data, const kql::Json::Value& document) const override;
    bool write(const RuleData& data, const TemplateSection& section, const WriteContext& context,
               kql::Json::Value& document) const override;
    bool isCalibration() const override { return true; }
};
