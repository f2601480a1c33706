#include "tools/rulesctl/savefailure.h"

#include "Protocol/checkfault.h"
#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "tools/rulesctl/documents/loadedrules.h"
#include "tools/rulesctl/plainline.h"

using kql::Json::Value;

namespace
{

Value orNull(const QString& text)
{
    return text.isEmpty() ? Value() : Value(text);
}

SaveFailure failureOf(const RuleData& scene, const CheckFault& fault)
{
    SaveFailure failure;
    failure.scene = scene.getTemplate()->name();
    failure.message = fault.message;
    const int position = scene.indexOf(fault.dataId);
    failure.entry = position + 1;
    // The global section has no buttons.
    if (position >= 0 && scene.getSceneType() != SceneType::Global)
        failure.name = EntryName::button(scene, position);
    if (fault.key != QLatin1String(EntryName::kRow))
        failure.key = fault.key;
    return failure;
}

} // namespace

Value SaveFailure::toJson() const
{
    Value failure;
    failure["scene"] = orNull(scene);
    failure["message"] = message;
    failure["entry"] = entry > 0 ? Value(entry) : Value();
    failure["name"] = orNull(name);
    failure["key"] = orNull(key);
    return failure;
}

Value SaveFailure::toJson(const std::vector<SaveFailure>& failures)
{
    Value list(kql::Json::ValueType::Array);
    for (const SaveFailure& failure : failures)
        list.append(failure.toJson());
    return list;
}

QString SaveFailure::text() const
{
    QString place = scene;
    if (entry > 0)
        place += QLatin1Char(' ') + QString::number(entry);
    if (!name.isEmpty())
        place += QStringLiteral(" \"%1\"").arg(name);
    const QString text = place.isEmpty() ? message : place + QStringLiteral(": ") + message;
    return PlainLine::of(text.simplified());
}

std::vector<SaveFailure> SaveFailure::of(LoadedRules& rules)
{
    rules.nameEntries();
    std::vector<SaveFailure> failures;
    std::vector<SaveFailure> ofNames;
    for (const auto& scene : rules.parser().getAllData()) {
        if (const auto fault = scene->firstFault())
            failures.push_back(failureOf(*scene, *fault));
        else if (const auto duplicate = EntryName::duplicate(*scene))
            ofNames.push_back(failureOf(*scene, *duplicate));
    }
    failures.insert(failures.end(), ofNames.begin(), ofNames.end());
    if (const auto refusal = rules.parser().writeRefusal())
        failures.push_back({refusal->section, refusal->why, 0, {}, {}});
    return failures;
}
