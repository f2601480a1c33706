#include "tools/rulesctl/apply/rollout.h"

#include "Protocol/entryid.h"
#include "Protocol/entryname.h"
#include "Protocol/lanes/lanenumbers.h"
#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "tools/rulesctl/diff/comparedentry.h"

#include <QSet>

#include <algorithm>

namespace
{

bool isLaneNumber(const QString& key)
{
    return key == LanesTemplate::kNumber || key == LanesTemplate::kRuleLaneNumber;
}

RuleDataInfo& entryAt(const RuleData& data, int position)
{
    return *data.getAllData()[static_cast<std::size_t>(position)];
}

void removeFigures(RuleData& data, int dataId)
{
    DrawScene& canvas = *data.getDrawScene();
    QList<int> roots;
    for (const DrawItem* item : canvas.getItemListByDataId(dataId)) {
        if (!item->parent())
            roots.append(item->itemId());
    }
    for (const int id : qAsConst(roots))
        canvas.removeItem(id);
}

void copyFigures(const RuleData& source, int sourceId, RuleData& target, int dataId)
{
    for (const DrawItem* item : source.getDrawScene()->getItemListByDataId(sourceId)) {
        if (item->parent())
            continue;
        QHash<const DrawItem*, DrawItem*> copies;
        auto copy = item->clone(copies);
        for (DrawItem* one : qAsConst(copies))
            one->setDataId(dataId);
        target.getDrawScene()->addItem(std::move(copy), 0);
    }
}

/// All but the name and the lane's number, which each configuration gives out by itself.
QString contentOf(const RuleData& data, int position)
{
    ComparedEntry entry = ComparedEntry::of(data, position);
    for (ComparedEntry::Attribute& attribute : entry.attributes) {
        if (isLaneNumber(attribute.item->key()))
            attribute.value = {};
    }
    return entry.content();
}

bool isCalled(const RuleData& data, int position, const QString& name)
{
    return EntryName::isText(data, position) && EntryName::written(data, position) == name;
}

int countOf(const RuleData& data, const QString& name)
{
    int count = 0;
    for (int i = 0; i < data.getDataCount(); ++i)
        count += isCalled(data, i, name) ? 1 : 0;
    return count;
}

/// From no place in the configuration that it gets into.
RuleDataInfo copyOf(const RuleData& data, int position)
{
    RuleDataInfo copy = entryAt(data, position);
    copy.setSourceIndex(-1);
    return copy;
}

/// In an entry that is not in @p used, which gets its id.
bool isThereAlready(const RuleData& source, int position, const RuleData& target, QSet<int>& used)
{
    const QString name = EntryName::written(source, position);
    const QString content = contentOf(source, position);
    for (int i = 0; i < target.getDataCount(); ++i) {
        const int id = entryAt(target, i).id();
        if (!used.contains(id) && EntryName::isText(target, i) &&
            EntryName::isNumbered(EntryName::written(target, i), name) &&
            contentOf(target, i) == content) {
            used.insert(id);
            return true;
        }
    }
    return false;
}

} // namespace

QString Rollout::fault() const
{
    const RuleData* const source = rulesOf(m_source);
    if (!source)
        return QStringLiteral("the template has no rules with names");
    for (const QString& name : m_names) {
        const auto count = countOf(*source, name);
        if (count != 1)
            return QStringLiteral("%1 \"%2\"")
                .arg(count == 0 ? QStringLiteral("there is no rule")
                                : QStringLiteral("there is more than one rule"),
                     name);
    }
    return {};
}

void Rollout::applyTo(const RuleParser& target) const
{
    const RuleData& source = *rulesOf(m_source);
    QSet<int> used;
    for (const QString& name : m_names)
        apply(source, positionOf(source, name), *rulesOf(target), used);
}

QString Rollout::notTaken(const RuleParser& target) const
{
    const RuleData& source = *rulesOf(m_source);
    QSet<int> used;
    for (const QString& name : m_names) {
        if (!isThereAlready(source, positionOf(source, name), *rulesOf(target), used))
            return QStringLiteral("the rule \"%1\" would not be the same there").arg(name);
    }
    return {};
}

RuleData* Rollout::rulesOf(const RuleParser& scenes)
{
    const auto& all = scenes.getAllData();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [](const auto& data) { return EntryName::areKept(*data); });
    return found == all.end() ? nullptr : found->get();
}

/// Of the first one; -1 for none.
int Rollout::positionOf(const RuleData& data, const QString& name)
{
    int position = 0;
    while (position < data.getDataCount() && !isCalled(data, position, name))
        ++position;
    return position < data.getDataCount() ? position : -1;
}

void Rollout::apply(const RuleData& source, int position, RuleData& target, QSet<int>& used) const
{
    const QString name = EntryName::written(source, position);
    const int at = positionOf(target, name);
    if (m_whereTaken == WhereTaken::AddToo) {
        if (!isThereAlready(source, position, target, used))
            used.insert(add(source, position, target));
    } else if (at >= 0) {
        replace(source, position, target, at);
    } else if (EntryName::numbered(target, name) == name) {
        add(source, position, target);
    }
    // Else a rule of that name belongs to no lane: it cannot be replaced, and none goes beside it.
}

/// A lane keeps its number, which other lanes have not.
void Rollout::replace(const RuleData& source, int position, RuleData& target, int at)
{
    RuleDataInfo& entry = entryAt(target, at);
    const RuleDataInfo before = entry;
    entry = copyOf(source, position);
    entry.setId(before.id());
    for (const QString& key : {LanesTemplate::kNumber, LanesTemplate::kRuleLaneNumber}) {
        if (before.hasValue(key))
            entry.setValue(key, before.value(key));
        if (const kql::Json::Value* const kept = before.asRead(key))
            entry.keepAsRead(key, *kept);
    }
    removeFigures(target, before.id());
    copyFigures(source, entryAt(source, position).id(), target, before.id());
}

int Rollout::add(const RuleData& source, int position, RuleData& target)
{
    auto entry = std::make_unique<RuleDataInfo>(copyOf(source, position));
    entry->setId(EntryId::next());
    entry->setName(EntryName::numbered(target, entry->name()));
    if (target.getSceneType() == SceneType::Lanes)
        LaneNumbers::giveFree(target, *entry);
    copyFigures(source, entryAt(source, position).id(), target, entry->id());
    const int id = entry->id();
    target.addDataInfo(std::move(entry));
    return id;
}
