#include "tools/rulesctl/lint/checks.h"

#include "Protocol/datatemplate.h"
#include "Protocol/detection/detectionprotocol.h"
#include "Protocol/entrywriter.h"
#include "Protocol/jsonpath.h"
#include "Protocol/placecheck.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/rules/rulesprotocol.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

using kql::Json::Value;
using PlaceCheck::PlaceFault;

namespace
{

/// Whether @p path would have to go on in something that is there and no object.
bool leadsThroughOther(const JsonPath& path, const Value& entry)
{
    const Value* value = &entry;
    for (std::size_t i = 0; i + 1 < path.parts().size(); ++i) {
        const JsonPath::Part& part = path.parts()[i];
        value = value->find(part.name);
        if (value && part.isArray && value->isArray()) {
            if (value->empty())
                return false;
            value = &(*value)[0];
        }
        if (!value || !value->isObject())
            return value;
    }
    return false;
}

/// Whether the type and the facade are as they were meant; where one is misspelt, or the key that
/// leads to the facade is missing, that is told by itself.
bool isSure(const LintedControl& control)
{
    const Value& type = (*control.json)["protocol"]["type"];
    const bool isMisspelt = type.isString() && control.item->valueType() == ValueType::None;
    const bool isUnsure = control.details && LintedTemplate::placeOfDetails(*control.details) ==
                                                 TemplatePlace::UnsureDetails;
    return !isMisspelt && !isUnsure && (*control.json)["key"].isString();
}

bool startsAsPoints(const LintedSection& section, const Value& skeleton)
{
    const JsonPath parent((*section.json)["parent"].asString());
    return section.type == SceneType::Detection &&
           DetectionProtocol::startsAsPoints(parent.find(skeleton), nullptr);
}

void tellBesidePoints(const LintedControl& control, Findings& findings)
{
    FindingMaker::add(findings, "place-unwritable", control.pointer + "/protocol/name",
                      (*control.json)["protocol"]["name"],
                      QStringLiteral("the skeleton's first area is a list of points; new areas "
                                     "have nothing else"));
}

void tell(const LintedControl& control, const PlaceFault& fault, const Value& prototype,
          Findings& findings)
{
    const std::string pointer = control.pointer + "/protocol/name";
    const Value& name = (*control.json)["protocol"]["name"];
    const auto add = [&](const char* code, const QString& message) {
        FindingMaker::add(findings, code, pointer, name, message);
    };
    if (fault.kind == PlaceFault::Kind::NoType)
        add("place-unwritable", QStringLiteral("a value without a type, or of the type \"point\", "
                                               "is not written"));
    else if (fault.kind == PlaceFault::Kind::OtherKind)
        add("place-unwritable",
            QStringLiteral("the skeleton's first entry has something there that no value of this "
                           "type replaces"));
    else if (leadsThroughOther(*fault.path, prototype))
        add("place-unwritable", QStringLiteral("%1 leads through something that is no object")
                                    .arg(FindingMaker::quoted(fault.path->text())));
    else
        add("place-missing", QStringLiteral("the skeleton's first entry has no place %1")
                                 .arg(FindingMaker::quoted(fault.path->text())));
}

/// What the module names itself has no place in the template but its section's.
void tellBuiltIn(const LintedSection& section, const QString& path, Findings& findings)
{
    const Value* const parent = section.json->find("parent");
    FindingMaker::add(findings, "place-unwritable",
                      parent ? section.pointer + "/parent" : section.pointer,
                      parent ? *parent : Value(),
                      QStringLiteral("%1 is not saved: the skeleton's first entry has something "
                                     "else in its place")
                          .arg(FindingMaker::quoted(path)));
}

/// The code that algorithms of a type have in each rule.
void judgeType(const LintedSection& section, Value prototype, Findings& findings)
{
    if (!RulesProtocol::writeType({}, prototype))
        tellBuiltIn(section, QStringLiteral("Config.Type"), findings);
}

void judge(const LintedSection& section, const Value& skeleton, Findings& findings)
{
    const EntryWriter writer(*section.data, QString::fromStdString(section.name));
    const Value prototype = section.prototype(&skeleton);
    const auto faultOf = [&](const RuleProtocolItem& item) {
        return PlaceCheck::faultOf(*section.data, item, writer, prototype);
    };
    for (const auto& item : section.dataTemplate()->items()) {
        const bool isBuiltIn =
            section.controls.empty() && item->templateName().toStdString() == section.name;
        if (isBuiltIn && faultOf(*item).kind != PlaceFault::Kind::None)
            tellBuiltIn(section, item->path().text(), findings);
    }
    const bool leavesOut = startsAsPoints(section, skeleton);
    for (const LintedControl& control : section.controls) {
        if (!control.item || !(*control.json)["protocol"]["name"].isString())
            continue;
        const PlaceFault fault = faultOf(*control.item);
        const bool isTold = fault.kind == PlaceFault::Kind::NoType && !isSure(control);
        if (fault.kind != PlaceFault::Kind::None && !isTold)
            tell(control, fault, prototype, findings);
        else if (fault.kind == PlaceFault::Kind::None && leavesOut &&
                 PlaceCheck::isBesidePoints(*section.data, *control.item))
            tellBesidePoints(control, findings);
    }
}

} // namespace

void Checks::places(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections()) {
        if (!section.data || !linted.skeleton())
            continue;
        judge(section, *linted.skeleton(), findings);
        if (section.type == SceneType::Rules && RulesProtocol::isTyped(linted.algorithmId()))
            judgeType(section, section.prototype(linted.skeleton()), findings);
    }
}
