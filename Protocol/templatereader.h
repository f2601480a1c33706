#pragma once

#include "Protocol/datatemplate.h"
#include "host/json/fwd.h"

#include <QList>
#include <memory>
#include <vector>

class CalibrateAreaTemplate;
class LanesTemplate;
class RuleData;

/**
 * Builds the scenes that a template document describes. Reading is lenient: what is missing or
 * of another kind is skipped.
 */
class TemplateReader
{
public:
    using Scenes = std::vector<std::unique_ptr<RuleData>>;

    /// @p document is not owned and must outlive the reader.
    explicit TemplateReader(const kql::Json::Value& document);

    /// One RuleData a scene: calibrate area, fight calibrate, lanes, rules, global, detection,
    /// each if present.
    Scenes read();
    /// Whether a section had more attributes or choices than EntryLimit allows; what was read is of
    /// no use then.
    bool isTooLarge() const { return !m_tooLarge.empty(); }
    /// For each such section the list of the document, or the default, with which it has too many.
    const std::vector<const kql::Json::Value*>& tooLarge() const { return m_tooLarge; }

private:
    void readCalibrateArea(const kql::Json::Value& section);
    void takeSampleLengths(CalibrateAreaTemplate& area) const;
    void readFightCalibrate(const kql::Json::Value& section);
    void readLanes(const kql::Json::Value& section);
    void readRuleDescription(const kql::Json::Value& description);
    void readRules(const kql::Json::Value& section);
    void addScene(SceneType type, const QString& name, const kql::Json::Value& section,
                  DataTemplate::Items items, const QList<CheckRule>& checks);

    DataTemplate::Items parseRuleProtocolItems(const kql::Json::Value& section,
                                               const QString& sectionName);

    const kql::Json::Value& m_configItems;
    const kql::Json::Value& m_description;
    const kql::Json::Value& m_skeleton;
    Scenes m_scenes;
    LanesTemplate* m_lanes = nullptr; ///< not owned; null without a lanes scene
    std::vector<const kql::Json::Value*> m_tooLarge;
};
