#pragma once

#include "Protocol/templatemembers.h"
#include "Protocol/templatereader.h"
#include "host/json/value.h"

#include <string>
#include <vector>

class DataTemplate;
class RuleData;
class RuleProtocolItem;

/// A control of a template: what is written, and what the reader made of it. Nothing is owned.
struct LintedControl {
    std::string pointer;
    const kql::Json::Value* json;
    const RuleProtocolItem* item;    ///< null where the reader came to none
    const kql::Json::Value* details; ///< null where "configItems" has none of its key
    std::string detailsPointer;
};

/// A section that makes a scene or, edited per lane, belongs to one. Nothing is owned.
struct LintedSection {
    std::string name;
    std::string pointer;
    TemplatePlace place;
    const kql::Json::Value* json;
    RuleData* data; ///< the scene; null where the template is too large to be read
    SceneType type; ///< of the section, be it edited per lane or not
    std::vector<LintedControl> controls;

    const DataTemplate* dataTemplate() const;
    /// Null where the scene has none; of several with one key the first.
    const LintedControl* find(const QString& key) const;
    /// Whether it is the section of rules, and each lane has one.
    bool isPerLane() const;
    /// What its entries start as when a save writes them into @p skeleton, null for none. There has
    /// to be a scene.
    kql::Json::Value prototype(const kql::Json::Value* skeleton) const;
};

/// A template document beside the scenes that the reader makes of it, for checks to judge.
class LintedTemplate
{
public:
    /// @p document has "configDescription"; @p algorithmId is that of RuleParser.
    explicit LintedTemplate(kql::Json::Value document, int algorithmId = 0);
    ~LintedTemplate();
    LintedTemplate(const LintedTemplate&) = delete;
    LintedTemplate& operator=(const LintedTemplate&) = delete;

    /// What @p details are by their facade; of one that is spelled wrong all members count as read.
    static TemplatePlace placeOfDetails(const kql::Json::Value& details);

    const kql::Json::Value& document() const { return m_document; }
    /// Null where the template has none.
    const kql::Json::Value* skeleton() const { return m_document.find("configTemplate"); }
    const std::vector<LintedSection>& sections() const { return m_sections; }
    int algorithmId() const { return m_algorithmId; }
    /// Of what the template has more than the reader takes. There are no scenes then.
    const std::vector<const kql::Json::Value*>& tooLarge() const { return m_tooLarge; }

private:
    void addSection(const std::string& parent, const kql::Json::Value& json, TemplatePlace place,
                    const char* name, SceneType type);
    void addControls(LintedSection& section) const;
    RuleData* sceneOf(SceneType type) const;

    kql::Json::Value m_document;
    int m_algorithmId;
    TemplateReader::Scenes m_scenes;
    std::vector<const kql::Json::Value*> m_tooLarge;
    std::vector<LintedSection> m_sections;
};
