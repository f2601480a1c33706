#include "Protocol/templatemembers.h"

#include <algorithm>
#include <map>

namespace
{

using Member = TemplateMember;
using Place = TemplatePlace;
using Members = std::vector<Member>;

constexpr unsigned kSection = Member::Object | Member::Null;
constexpr unsigned kValue = Member::Text | Member::Object;

constexpr Member text(const char* name, bool isNeeded = false)
{
    return {name, Member::Text, isNeeded};
}

constexpr Member object(const char* name, Place inside, bool isNeeded = false)
{
    return {name, Member::Object, isNeeded, inside};
}

constexpr Member section(const char* name, Place inside)
{
    return {name, kSection, false, inside};
}

constexpr Member objects(const char* name, Place inside, unsigned otherKinds = 0)
{
    return {name, Member::List | otherKinds, false, inside, Member::Object};
}

constexpr Member pair(const char* name, unsigned otherKinds = 0)
{
    return {name, Member::List | otherKinds, false, Place::None, Member::Cut, true};
}

constexpr Member value(const char* name, unsigned kinds)
{
    return {name, kinds};
}

Members details(const Members& further)
{
    Members members{text("describe"), text("facade")};
    members.insert(members.end(), further.begin(), further.end());
    return members;
}

const Member kRange = pair("range", Member::Null);
const Member kUnits = text("units");
const Member kEnumeration = objects("enumeration", Place::Choice);
const Member kIsAll = value("isAll", Member::Switch);
constexpr unsigned kAnyDefault =
    Member::Text | Member::Number | Member::Switch | Member::Object | Member::Null;

const std::map<Place, Members>& table()
{
    static const std::map<Place, Members> members{
        {Place::None, {}},
        {Place::Root,
         {object("configDescription", Place::Description, true),
          object("configItems", Place::Items), object("configTemplate", Place::None, true)}},
        {Place::Description,
         {section("calibrateArea", Place::CalibrateArea),
          section("fightCalibrate", Place::FightCalibrate), section("lanes", Place::Lanes),
          object("ruleDescription", Place::RuleDescription)}},
        {Place::CalibrateArea,
         {text("parent"), text("method", true), pair("celibateArea"), pair("pointOfArea"),
          value("defaultWidth", Member::Number), value("defaultHeight", Member::Number)}},
        {Place::FightCalibrate,
         {text("parent"), pair("celibateArea"), pair("pointOfArea"), pair("rectOfArea")}},
        {Place::Lanes, {text("parent"), pair("countOfLane")}},
        {Place::RuleDescription,
         {section("rules", Place::Rules), section("global", Place::PlainSection),
          section("detectArea", Place::PlainSection)}},
        {Place::Rules,
         {text("parent"), pair("count"), objects("controls", Place::Control),
          objects("checkValueControls", Place::Check, Member::Null)}},
        {Place::PlainSection, {text("parent"), pair("count"), objects("controls", Place::Control)}},
        {Place::Control,
         {text("key", true), object("protocol", Place::Protocol, true),
          object("valid", Place::Condition), objects("depend", Place::Dependency)}},
        {Place::Protocol, {text("name", true), text("type", true), value("index", Member::Whole)}},
        {Place::Condition,
         {text("controlKey", true),
          value("enumValue", kValue),
          {"enumValueArray", Member::List, false, Place::None, kValue}}},
        {Place::Dependency, {text("key")}},
        {Place::Check,
         {text("firstKey", true), text("secondKey", true), object("rule", Place::CheckRule, true)}},
        {Place::CheckRule, {text("operator", true)}},
        {Place::FigureDetails, details({kRange})},
        {Place::NumberBoxDetails,
         details({kRange,
                  value("default", Member::Number | Member::Text | Member::Object | Member::Null),
                  kUnits})},
        {Place::ChoiceDetails, details({kEnumeration, kIsAll, value("default", kValue)})},
        {Place::SwitchDetails, details({value("default", Member::Switch)})},
        {Place::PlainDetails, details({})},
        {Place::UnsureDetails,
         details({kRange, value("default", kAnyDefault), kUnits, kEnumeration, kIsAll})},
        {Place::Choice,
         {text("name"), value("value", kValue), text("describe"), value("isAll", Member::Switch)}},
    };
    return members;
}

} // namespace

const std::vector<TemplateMember>& TemplateMembers::of(TemplatePlace place)
{
    const auto found = table().find(place);
    return found == table().end() ? table().at(TemplatePlace::None) : found->second;
}

const TemplateMember* TemplateMembers::find(TemplatePlace place, std::string_view name)
{
    const Members& members = of(place);
    const auto found = std::find_if(members.begin(), members.end(),
                                    [name](const Member& member) { return name == member.name; });
    return found == members.end() ? nullptr : &*found;
}

TemplatePlace TemplateMembers::detailsOf(FacadeType facade)
{
    switch (facade) {
    case FacadeType::InputBoxNumber:
        return Place::NumberBoxDetails;
    case FacadeType::CheckBox:
    case FacadeType::RadioButton:
        return Place::ChoiceDetails;
    case FacadeType::Bool:
        return Place::SwitchDetails;
    case FacadeType::NumericalInterval:
    case FacadeType::None:
        return Place::PlainDetails;
    default:
        return Place::FigureDetails;
    }
}
