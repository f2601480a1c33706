#include "plugin/steptitle.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "host/api/rowcontract.h"
#include "plugin/editstep.h"

#include <QCoreApplication>

#include <algorithm>

namespace IntelligentRulesUI
{

namespace
{

using Kind = SceneChange::Kind;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(IntelligentRulesUI::StepTitle)
};

/// The name of an entry of @p state; empty where there is no such entry.
QString nameIn(const SceneState& state, int dataId, const RuleData& data)
{
    const auto& entries = state.entries();
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [dataId](const auto& entry) { return entry->id() == dataId; });
    return found == entries.end() ? QString()
                                  : EntryName::button(data, (*found)->name(),
                                                      static_cast<int>(found - entries.begin()));
}

/// The first figure of @p state that @p other lacks; null when it has all of them.
const FigureState* figureBeside(const SceneState& state, const SceneState& other)
{
    for (const auto& figure : state.figures()) {
        if (!other.figure(figure->itemId))
            return figure.get();
    }
    return nullptr;
}

/// The one row that no attribute has is that of the name.
QString ofRow(const EditStep& step, const QString& name, const RuleData& data)
{
    if (step.row == QLatin1String(RowContract::kEnable))
        return Texts::tr("Switch %1").arg(name);
    const RuleProtocolItem* const item = data.getTemplate()->findItem(step.row);
    return item ? QStringLiteral("%1 (%2)").arg(item->caption(), name)
                : Texts::tr("Rename %1").arg(nameIn(step.before, step.change.dataId, data));
}

QString ofBeginning(const EditStep& step, const QString& name)
{
    const int itemId = step.change.itemId;
    const bool isNew = !step.before.entry(step.change.dataId) || !step.before.figure(itemId);
    const FigureState* const figure = step.after.figure(itemId);
    const QString label = figure && figure->parentId != 0 ? figure->figure.label() : QString();
    return (isNew ? Texts::tr("Add %1") : Texts::tr("Redraw %1"))
        .arg(label.isEmpty() ? name : label);
}

} // namespace

QString StepTitle::of(const EditStep& step, const RuleData& data)
{
    const QString name = nameIn(step.after, step.change.dataId, data);
    if (step.change.kind == Kind::Attribute)
        return ofRow(step, name, data);
    if (step.change.kind == Kind::Drawn)
        return Texts::tr("Point");
    if (step.change.kind == Kind::Begun)
        return ofBeginning(step, name);
    if (name.isEmpty())
        return Texts::tr("Delete %1").arg(nameIn(step.before, step.change.dataId, data));
    if (!step.before.entry(step.change.dataId))
        return Texts::tr("Add %1").arg(name);
    if (const FigureState* const gone = figureBeside(step.before, step.after))
        return Texts::tr("Delete %1").arg(gone->figure.label());
    const FigureState* const figure = step.after.figure(step.change.itemId);
    return figure && step.before.figure(step.change.itemId)
               ? Texts::tr("Correct %1").arg(figure->figure.label())
               : name;
}

} // namespace IntelligentRulesUI
