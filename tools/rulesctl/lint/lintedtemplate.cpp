#include "tools/rulesctl/lint/lintedtemplate.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entrywriter.h"
#include "Protocol/jsonpath.h"
#include "Protocol/placecheck.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/spelling.h"
#include "tools/rulesctl/lint/jsonpointer.h"

#include <algorithm>

using kql::Json::Value;

const DataTemplate* LintedSection::dataTemplate() const
{
    return data ? data->getTemplate() : nullptr;
}

const LintedControl* LintedSection::find(const QString& key) const
{
    const auto found =
        std::find_if(controls.begin(), controls.end(), [&key](const LintedControl& control) {
            return (*control.json)["key"].asString() == key;
        });
    return found == controls.end() ? nullptr : &*found;
}

bool LintedSection::isPerLane() const
{
    return data && data->getSceneType() != type;
}

Value LintedSection::prototype(const Value* skeleton) const
{
    const JsonPath parent((*json)["parent"].asString());
    return EntryWriter(*data, QString::fromStdString(name))
        .prototype(skeleton ? parent.firstEntryIn(*skeleton) : nullptr);
}

LintedTemplate::LintedTemplate(Value document, int algorithmId)
    : m_document(std::move(document)), m_algorithmId(algorithmId)
{
    TemplateReader reader(m_document);
    m_scenes = reader.read();
    m_tooLarge = reader.tooLarge();
    if (reader.isTooLarge())
        m_scenes.clear();
    for (const auto& scene : m_scenes) {
        if (skeleton())
            PlaceCheck::tell(*scene, *skeleton(), Value());
    }
    const std::string description = "/configDescription";
    const std::string rules = description + "/ruleDescription";
    const Value& scenes = m_document["configDescription"];
    const Value& ruleScenes = scenes["ruleDescription"];
    addSection(description, scenes, TemplatePlace::CalibrateArea, "calibrateArea",
               SceneType::CalibrateArea);
    addSection(description, scenes, TemplatePlace::FightCalibrate, "fightCalibrate",
               SceneType::FightCalibrate);
    addSection(description, scenes, TemplatePlace::Lanes, "lanes", SceneType::Lanes);
    addSection(rules, ruleScenes, TemplatePlace::Rules, "rules", SceneType::Rules);
    addSection(rules, ruleScenes, TemplatePlace::PlainSection, "global", SceneType::Global);
    addSection(rules, ruleScenes, TemplatePlace::PlainSection, "detectArea", SceneType::Detection);
}

LintedTemplate::~LintedTemplate() = default;

TemplatePlace LintedTemplate::placeOfDetails(const Value& details)
{
    const Value& spelled = details["facade"];
    const FacadeType facade = Spelling::toFacadeType(spelled.asString());
    const bool isMisspelt = !spelled.isNull() && facade == FacadeType::None;
    return isMisspelt ? TemplatePlace::UnsureDetails : TemplateMembers::detailsOf(facade);
}

RuleData* LintedTemplate::sceneOf(SceneType type) const
{
    const auto found = std::find_if(m_scenes.begin(), m_scenes.end(), [type](const auto& scene) {
        return scene->getSceneType() == type;
    });
    return found == m_scenes.end() ? nullptr : found->get();
}

void LintedTemplate::addSection(const std::string& parent, const Value& json, TemplatePlace place,
                                const char* name, SceneType type)
{
    const Value* const section = json.find(name);
    if (!section || section->isNull())
        return;
    RuleData* data = sceneOf(type);
    if (!data && type == SceneType::Rules)
        data = sceneOf(SceneType::Lanes);
    m_sections.push_back({name, JsonPointer::member(parent, name), place, section, data, type, {}});
    addControls(m_sections.back());
}

/// The reader makes an item of each control, in their order, or of none.
void LintedTemplate::addControls(LintedSection& section) const
{
    std::vector<const RuleProtocolItem*> items;
    if (const DataTemplate* const made = section.dataTemplate()) {
        for (const auto& item : made->items()) {
            if (item->templateName().toStdString() == section.name)
                items.push_back(item.get());
        }
    }
    const bool isBuiltIn = TemplateMembers::find(section.place, "controls") == nullptr;
    const Value& controls = (*section.json)["controls"];
    for (int i = 0; !isBuiltIn && controls.isArray() && i < controls.size(); ++i) {
        const std::string key = controls[i]["key"].asStdString();
        const bool isRead = items.size() == std::size_t(controls.size());
        section.controls.push_back({JsonPointer::element(section.pointer + "/controls", i),
                                    &controls[i], isRead ? items[std::size_t(i)] : nullptr,
                                    m_document["configItems"].find(key),
                                    JsonPointer::member("/configItems", key)});
    }
}
