#pragma once

#include "Protocol/sceneprotocol.h"

/**
 * Detection areas. The configuration holds them as objects, or as bare lists of points for the
 * template's first figure; a single bare list may stand in the place of all. Each is written in the
 * shape that it was read in, new ones in the skeleton's.
 */
class DetectionProtocol final : public SceneProtocol
{
public:
    void read(RuleData& data, const kql::Json::Value& document) const override;
    bool write(const RuleData& data, const TemplateSection& section, const WriteContext& context,
               kql::Json::Value& document) const override
    {
        return writeDetection(data, section, context, document);
    }
    JsonEntries entriesAt(const kql::Json::Value* place) const override;
    /// Whether new areas are bare lists of points, as what lies at the place of the areas in
    /// @p skeleton and @p configuration says, which may be null.
    static bool startsAsPoints(const kql::Json::Value* skeleton,
                               const kql::Json::Value* configuration);
    /// The areas are what is drawn here.
    RuleProtocolItem* entryFigureItem(const DataTemplate& dataTemplate) const override;

protected:
    std::unique_ptr<RuleDataInfo> newEntry(const RuleData& data,
                                           const kql::Json::Value& json) const override;

private:
    bool writeDetection(const RuleData& data, const TemplateSection& section,
                        const WriteContext& context, kql::Json::Value& document) const;
};
