#include "tools/rulesctl/diff/entrychanges.h"

#include "Protocol/pointconversion.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/savenotices.h"
#include "tools/rulesctl/diff/changetext.h"
#include "tools/rulesctl/diff/othermembers.h"

#include <QSet>

#include <algorithm>
#include <cmath>

using kql::Json::Value;
using Kind = Change::Kind;

namespace
{

constexpr double kSquare = 8192;

/// The way of the farthest of them in per cent, to a tenth; nothing where their numbers differ.
std::optional<double> farthestWay(const QVector<QPoint>& from, const QVector<QPoint>& to)
{
    if (from.size() != to.size())
        return std::nullopt;
    double farthest = 0;
    for (int i = 0; i < from.size(); ++i)
        farthest = std::max(
            farthest, std::hypot(double(to[i].x()) - from[i].x(), double(to[i].y()) - from[i].y()));
    return std::round(farthest * 1000 / kSquare) / 10;
}

Change said(Change change, const RuleProtocolItem* item)
{
    change.text = ChangeText::of(change, item);
    return change;
}

} // namespace

std::vector<Change> EntryChanges::between(const Side& a, const Side& b, bool isMoved) const
{
    std::vector<Change> changes;
    addHead(a, b, isMoved, changes);
    const std::size_t count = std::min(a.entry.attributes.size(), b.entry.attributes.size());
    for (std::size_t i = 0; i < count; ++i) {
        const ComparedEntry::Attribute& is = b.entry.attributes[i];
        const Value& was = a.entry.attributes[i].value;
        if (OtherMembers::areSame(was, is.value))
            continue;
        Change one = change(Kind::Attribute, *is.item, a, b);
        one.from = was;
        one.to = is.value;
        changes.push_back(said(std::move(one), is.item));
    }
    QSet<QString> known;
    for (const ComparedEntry* entry : {&a.entry, &b.entry}) {
        for (const ComparedEntry::Figure& figure : entry->figures) {
            if (!known.contains(figure.item->key()))
                addFigures(*figure.item, a, b, changes);
            known.insert(figure.item->key());
        }
    }
    return changes;
}

Change EntryChanges::whole(Kind kind, const std::optional<Side>& a,
                           const std::optional<Side>& b) const
{
    Change change{kind, m_scene, (b ? *b : *a).entry.name};
    if (a)
        change.a = a->position + 1;
    if (b)
        change.b = b->position + 1;
    return said(std::move(change), nullptr);
}

Change EntryChanges::change(Kind kind, const RuleProtocolItem& item, const Side& a,
                            const Side& b) const
{
    Change change{kind, m_scene, b.entry.name, a.position + 1, b.position + 1};
    change.key = item.key();
    change.caption = SaveNotices::subject(item);
    return change;
}

void EntryChanges::addHead(const Side& a, const Side& b, bool isMoved,
                           std::vector<Change>& changes) const
{
    const auto add = [&](Kind kind, const Value& from, const Value& to) {
        Change change{kind, m_scene, b.entry.name, a.position + 1, b.position + 1};
        change.from = from;
        change.to = to;
        changes.push_back(said(std::move(change), nullptr));
    };
    if (!OtherMembers::areSame(a.entry.ownName, b.entry.ownName))
        add(Kind::Renamed, a.entry.ownName, b.entry.ownName);
    if (isMoved)
        add(Kind::Moved, Value(a.position + 1), Value(b.position + 1));
    if (!OtherMembers::areSame(a.entry.enabled, b.entry.enabled))
        add(Kind::Enabled, a.entry.enabled, b.entry.enabled);
}

void EntryChanges::addFigures(const RuleProtocolItem& item, const Side& a, const Side& b,
                              std::vector<Change>& changes) const
{
    const auto before = a.entry.figuresOf(item.key());
    const auto after = b.entry.figuresOf(item.key());
    const std::size_t count = std::max(before.size(), after.size());
    for (std::size_t i = 0; i < count; ++i) {
        auto one = ofFigure(item, i < before.size() ? before[i] : nullptr,
                            i < after.size() ? after[i] : nullptr, a, b);
        if (!one)
            continue;
        one->number = count > 1 ? static_cast<int>(i) + 1 : 0;
        changes.push_back(said(std::move(*one), &item));
    }
}

/// A parallelogram that is crossed in another direction moves the points that say so.
std::optional<Change> EntryChanges::ofFigure(const RuleProtocolItem& item,
                                             const ComparedEntry::Figure* was,
                                             const ComparedEntry::Figure* is, const Side& a,
                                             const Side& b) const
{
    Change one = change(Kind::Figure, item, a, b);
    if (!was || !is) {
        one.from = was ? PointConversion::toJson(was->points) : Value();
        one.to = is ? PointConversion::toJson(is->points) : Value();
        return one;
    }
    const bool isTurned = was->points == is->points;
    if (isTurned && was->directions == is->directions)
        return std::nullopt;
    const QVector<QPoint>& from = isTurned ? was->directions : was->points;
    const QVector<QPoint>& to = isTurned ? is->directions : is->points;
    one.from = PointConversion::toJson(from);
    one.to = PointConversion::toJson(to);
    one.by = farthestWay(from, to);
    one.isTurned = isTurned;
    return one;
}
