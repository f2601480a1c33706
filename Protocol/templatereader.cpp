#include "Protocol/templatereader.h"

#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/calibration/calibratestaffs.h"
#include "Protocol/configmember.h"
#include "Protocol/fight/fightcalibratetemplate.h"
#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/scenedata.h"
#include "Protocol/spelling.h"
#include "Protocol/templateitemreader.h"
#include "host/api/limits.h"
#include "host/json/value.h"

#include <QMap>
#include <QPair>
#include <QStringList>
#include <algorithm>

using kql::Json::Value;
using TemplateItemReader::parseCountRange;

namespace
{

void applyParentAndCount(DataTemplate& target, const Value& section, const char* countKey)
{
    target.setParent(section["parent"].asString());
    if (const auto count = parseCountRange(section[countKey]))
        target.setCountRange(*count);
}

CheckRule parseCheck(const Value& check)
{
    CheckRule rule;
    if (!check.isMember("firstKey") || !check.isMember("secondKey"))
        return rule;
    rule.firstKey = check["firstKey"].asString();
    rule.secondKey = check["secondKey"].asString();
    rule.operatorType = Spelling::toOperatorType(check["rule"]["operator"].asString());
    return rule;
}

QList<CheckRule> parseChecks(const Value& checks)
{
    QList<CheckRule> rules;
    for (int i = 0; checks.isArray() && i < checks.size(); ++i) {
        const CheckRule rule = parseCheck(checks[i]);
        if (rule.operatorType != CheckRuleOperatorType::None)
            rules.append(rule);
    }
    return rules;
}

/// Styled, an object may have a hundred times its length.
qint64 countStyled(const Value& value)
{
    return value.isObject() ? value.styledLength() / Limits::kChoiceText : 0;
}

/// How many choices the details of an attribute count as.
qint64 countChoices(const Value& details)
{
    const Value& choices = details["enumeration"];
    qint64 count = choices.size() + countStyled(details["default"]);
    for (int i = 0; i < choices.size(); ++i)
        count += countStyled(choices[i]["value"]);
    return count;
}

/// The choices or, where it counts as more of them, the default.
const Value& largestOf(const Value& details)
{
    const Value& choices = details["enumeration"];
    return choices.size() < countStyled(details["default"]) ? details["default"] : choices;
}

bool isEditedPerLane(const DataTemplate::Items& ruleItems)
{
    return std::any_of(ruleItems.begin(), ruleItems.end(), [](const auto& item) {
        return item->key() == LanesTemplate::kRuleLaneNumber;
    });
}

} // namespace

TemplateReader::TemplateReader(const Value& document)
    : m_configItems(document["configItems"]),
      m_description(document["configDescription"]),
      m_skeleton(document["configTemplate"])
{
}

TemplateReader::Scenes TemplateReader::read()
{
    if (const Value& section = m_description["calibrateArea"]; !section.isNull())
        readCalibrateArea(section);
    if (const Value& section = m_description["fightCalibrate"]; !section.isNull())
        readFightCalibrate(section);
    if (const Value& section = m_description["lanes"]; !section.isNull())
        readLanes(section);
    readRuleDescription(m_description["ruleDescription"]);
    return std::move(m_scenes);
}

void TemplateReader::readCalibrateArea(const Value& section)
{
    auto data = std::make_unique<CalibrateAreaData>();
    CalibrateAreaTemplate& area = *CalibrateAreaTemplate::of(*data);
    applyParentAndCount(area, section, "celibateArea");
    area.setMethod(section["method"].asString());
    if (const auto points = parseCountRange(section["pointOfArea"]))
        area.setAreaPointCount(*points);
    if (const Value* const width = section.find("defaultWidth"))
        area.setDefaultWidth(width->asDouble());
    if (const Value* const height = section.find("defaultHeight"))
        area.setDefaultHeight(height->asDouble());
    if (area.isSceneMethod())
        takeSampleLengths(area);
    m_scenes.push_back(std::move(data));
}

/// The staffs that are drawn are made from the skeleton's, lengths included.
void TemplateReader::takeSampleLengths(CalibrateAreaTemplate& area) const
{
    const Value* const entry = JsonPath(area.parent()).firstEntryIn(m_skeleton);
    const Value* const staffs = entry ? area.verticalStaffItem()->path().find(*entry) : nullptr;
    if (staffs)
        CalibrateStaffs::takeSampleLengths(area, *staffs);
}

void TemplateReader::readFightCalibrate(const Value& section)
{
    auto data = std::make_unique<FightCalibrateData>();
    auto fight = std::make_unique<FightCalibrateTemplate>();
    applyParentAndCount(*fight, section, "celibateArea");
    if (const auto points = parseCountRange(section["pointOfArea"]))
        fight->setAreaPointCount(*points);
    if (const auto rects = parseCountRange(section["rectOfArea"]))
        fight->setRectCount(*rects);
    data->setTemplate(std::move(fight));
    m_scenes.push_back(std::move(data));
}

void TemplateReader::readLanes(const Value& section)
{
    auto data = std::make_unique<LanesData>();
    m_lanes = LanesTemplate::of(*data);
    applyParentAndCount(*m_lanes, section, "countOfLane");
    m_scenes.push_back(std::move(data));
}

void TemplateReader::readRuleDescription(const Value& description)
{
    if (const Value& section = description["rules"]; !section.isNull())
        readRules(section);
    const auto readPlain = [&](SceneType type, const char* member) {
        const QString name = QString::fromLatin1(member);
        if (const Value& section = description[member]; !section.isNull())
            addScene(type, name, section, parseRuleProtocolItems(section, name), {});
    };
    readPlain(SceneType::Global, "global");
    readPlain(SceneType::Detection, "detectArea");
}

void TemplateReader::readRules(const Value& section)
{
    DataTemplate::Items items = parseRuleProtocolItems(section, ConfigMember::kRuleSection);
    const QList<CheckRule> checks = parseChecks(section["checkValueControls"]);
    if (!m_lanes || !isEditedPerLane(items)) {
        addScene(SceneType::Rules, ConfigMember::kRuleSection, section, std::move(items), checks);
        return;
    }
    m_lanes->addRuleItems(std::move(items));
    for (const CheckRule& check : checks)
        m_lanes->addCheckRule(check);
}

void TemplateReader::addScene(SceneType type, const QString& name, const Value& section,
                              DataTemplate::Items items, const QList<CheckRule>& checks)
{
    auto data = std::make_unique<RuleData>();
    data->setSceneType(type);
    auto dataTemplate = std::make_unique<DataTemplate>();
    dataTemplate->setName(name);
    applyParentAndCount(*dataTemplate, section, "count");
    dataTemplate->setItems(std::move(items));
    for (const CheckRule& check : checks)
        dataTemplate->addCheckRule(check);
    data->setTemplate(std::move(dataTemplate));
    m_scenes.push_back(std::move(data));
}

DataTemplate::Items TemplateReader::parseRuleProtocolItems(const Value& section,
                                                           const QString& sectionName)
{
    DataTemplate::Items items;
    const Value& controls = section["controls"];
    if (!section.isMember("parent") || !controls.isArray())
        return items;
    const QString parent = section["parent"].asString();
    const QStringList dependencies = TemplateItemReader::parseDependencies(controls);
    QMap<QPair<QString, int>, const RuleProtocolItem*> known;
    qint64 choicesLeft = controls.size() <= Limits::kAttributes ? Limits::kChoices : -1;
    const Value* tooLarge = choicesLeft < 0 ? &controls : nullptr;
    for (int i = 0; i < controls.size() && !tooLarge; ++i) {
        auto item = TemplateItemReader::parseControl(controls[i]);
        if (controls[i]["depend"].isArray())
            item->setDependencies(dependencies);
        item->setParent(parent);
        item->setTemplateName(sectionName);
        if (const Value* const details = m_configItems.find(item->key().toStdString())) {
            // Many items may share one long list, so it is counted before it is read.
            choicesLeft -= countChoices(*details);
            if (choicesLeft < 0)
                tooLarge = &largestOf(*details);
            const RuleProtocolItem*& same =
                known[{item->key(), static_cast<int>(item->valueType())}];
            if (same)
                item->takeDetailsFrom(*same);
            else if (!tooLarge)
                TemplateItemReader::parseRuleProtocolItem(*item, *details);
            same = item.get();
        }
        items.push_back(std::move(item));
    }
    if (tooLarge)
        m_tooLarge.push_back(tooLarge);
    return items;
}
