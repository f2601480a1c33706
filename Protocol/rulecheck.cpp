#include "Protocol/rulecheck.h"

#include "Protocol/controlrow.h"
#include "Protocol/datatemplate.h"
#include "Protocol/entryfigures.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/validity.h"
#include "Protocol/valuecompare.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <QCoreApplication>
#include <QSize>
#include <functional>
#include <vector>

namespace
{

using Failure = std::optional<CheckFault>;

constexpr int kEmpty = -1;
constexpr CountRange kAnyNumber{0, 0};

/// The texts that a check gives are the scene's.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(RuleData)
};

QString wrongEntryCount(CountRange range, const QString& entryTitle)
{
    const QString minimum = QString::number(range.min);
    if (range.min == range.max)
        return Text::tr("Please add %1 %2.").arg(minimum, entryTitle);
    return Text::tr("Please add %1-%2 %3.").arg(minimum, QString::number(range.max), entryTitle);
}

/// A range that the operator sees must have both ends; an empty text when it has.
QString emptyEnd(const RuleProtocolItem& item)
{
    const ControlRow* const row = item.row();
    if (item.valueType() != ValueType::ArrayInt || !row)
        return {};
    const QVariant value = row->value();
    if (value.userType() != QMetaType::QSize)
        return {};
    const QSize range = value.toSize();
    if ((range.width() != kEmpty && range.height() != kEmpty) || !row->isRowVisible())
        return {};
    if (range.width() == kEmpty) {
        return Text::tr("%1:%2").arg(item.caption(),
                                     Text::tr("The minimum value cannot be empty."));
    }
    return Text::tr("%1:%2").arg(item.caption(), Text::tr("The maximum value cannot be empty."));
}

QString wrongFigureCount(const RuleProtocolItem& item)
{
    const CountRange range = item.countRange();
    const QString minimum = QString::number(range.min);
    if (range.min == range.max)
        return Text::tr("Please draw %1 %2.").arg(minimum, item.caption());
    return Text::tr("Please draw %1-%2 %3.")
        .arg(minimum, QString::number(range.max), item.caption());
}

QString reasonText(CheckRuleOperatorType operatorType)
{
    switch (operatorType) {
    case CheckRuleOperatorType::Greater:
        return Text::tr("greater than");
    case CheckRuleOperatorType::Less:
        return Text::tr("less than");
    case CheckRuleOperatorType::Equal:
        return Text::tr("equal");
    case CheckRuleOperatorType::GreaterOrEqual:
        return Text::tr("greater than or equal");
    default:
        return Text::tr("less than or equal");
    }
}

QVariant comparable(const QVariant& value, const RuleProtocolItem& item)
{
    const bool hasSpellings = item.valueType() == ValueType::Object;
    return hasSpellings ? ComparableText::of(value.toString(), item.valueType()) : value;
}

/// Checks one entry after another; what is the same for all is looked up once.
class EntryCheck
{
public:
    EntryCheck(const DataTemplate& dataTemplate, const DrawScene& scene);

    Failure firstFailure(const RuleDataInfo& entry) const;
    Failure failureOf(const CheckFault& fault, const RuleDataInfo& entry) const;

private:
    struct Comparison {
        const RuleProtocolItem* first;
        const RuleProtocolItem* second;
        CheckRuleOperatorType operatorType;
    };

    using IsAsked = std::function<bool(const Comparison& comparison)>;

    Failure checkItem(const RuleDataInfo& entry, const RuleProtocolItem& item) const;
    Failure checkRange(const RuleDataInfo& entry, const RuleProtocolItem& item) const;
    Failure checkFigures(const RuleDataInfo& entry, const RuleProtocolItem& item) const;
    Failure checkValues(const RuleDataInfo& entry, const IsAsked& isAsked) const;
    static Failure compare(const RuleDataInfo& entry, const Comparison& comparison);

    const DataTemplate& m_template;
    EntryFigures m_figures;
    int m_shownEntry;                             ///< id of the entry that the rows show
    std::vector<const RuleProtocolItem*> m_items; ///< those that there is something to check of
    std::vector<Comparison> m_comparisons;
};

EntryCheck::EntryCheck(const DataTemplate& dataTemplate, const DrawScene& scene)
    : m_template(dataTemplate), m_figures(dataTemplate, scene), m_shownEntry(scene.currentDataId())
{
    for (const auto& item : m_template.items()) {
        if (item->isFigure() || item->valueType() == ValueType::ArrayInt)
            m_items.push_back(item.get());
    }
    for (const CheckRule& rule : m_template.checkRules()) {
        const RuleProtocolItem* const first = m_template.findItem(rule.firstKey);
        const RuleProtocolItem* const second = m_template.findItem(rule.secondKey);
        if (first && second)
            m_comparisons.push_back({first, second, rule.operatorType});
    }
}

Failure EntryCheck::firstFailure(const RuleDataInfo& entry) const
{
    for (const RuleProtocolItem* const item : m_items) {
        if (Failure failure = checkItem(entry, *item))
            return failure;
    }
    return m_comparisons.empty() ? Failure()
                                 : checkValues(entry, [](const Comparison&) { return true; });
}

Failure EntryCheck::failureOf(const CheckFault& fault, const RuleDataInfo& entry) const
{
    const RuleProtocolItem* const item = m_template.findItem(fault.key);
    if (!item)
        return {};
    if (fault.comparedKey.isEmpty()) {
        // Its row cannot tell while it shows another entry.
        const bool isUnseen = !item->isFigure() && entry.id() != m_shownEntry;
        return isUnseen ? fault : checkItem(entry, *item);
    }
    return checkValues(entry, [&fault](const Comparison& comparison) {
        return comparison.first->key() == fault.key &&
               comparison.second->key() == fault.comparedKey;
    });
}

Failure EntryCheck::checkItem(const RuleDataInfo& entry, const RuleProtocolItem& item) const
{
    return item.isFigure() ? checkFigures(entry, item) : checkRange(entry, item);
}

Failure EntryCheck::checkRange(const RuleDataInfo& entry, const RuleProtocolItem& item) const
{
    const QString message = emptyEnd(item);
    if (message.isEmpty())
        return {};
    return CheckFault{message, m_shownEntry > 0 ? m_shownEntry : entry.id(), item.key(), {}, 0};
}

Failure EntryCheck::checkFigures(const RuleDataInfo& entry, const RuleProtocolItem& item) const
{
    const CountRange range = item.countRange();
    int count = 0;
    const DrawItem* unfinished = nullptr;
    const DrawItem* oneTooMany = nullptr;
    for (const DrawItem* figure : m_figures.of(entry.id())) {
        if (!m_template.isFigureFor(*figure, item))
            continue;
        if (count++ == range.max)
            oneTooMany = figure;
        if (!unfinished && !figure->isFinished())
            unfinished = figure;
    }
    CheckFault fault{{}, entry.id(), item.key(), {}, 0};
    if (!range.contains(count)) {
        if (range == kAnyNumber)
            return {};
        fault.message = wrongFigureCount(item);
        fault.itemId = oneTooMany ? oneTooMany->itemId() : 0;
        return fault;
    }
    if (!unfinished)
        return {};
    fault.message = Text::tr("Please finish drawing %1.").arg(unfinished->label());
    fault.itemId = unfinished->itemId();
    return fault;
}

Failure EntryCheck::checkValues(const RuleDataInfo& entry, const IsAsked& isAsked) const
{
    std::optional<QSet<const RuleProtocolItem*>> hidden; // few entries have to be asked for it
    for (const Comparison& comparison : m_comparisons) {
        Failure failure = isAsked(comparison) ? compare(entry, comparison) : Failure();
        if (!failure)
            continue;
        if (!hidden)
            hidden = Validity::hiddenItems(m_template, entry);
        if (!hidden->contains(comparison.first) && !hidden->contains(comparison.second))
            return failure;
    }
    return {};
}

Failure EntryCheck::compare(const RuleDataInfo& entry, const Comparison& comparison)
{
    const QString& firstKey = comparison.first->key();
    const QString& secondKey = comparison.second->key();
    if (!entry.isValid(firstKey) || !entry.isValid(secondKey))
        return {};
    const QVariant first = entry.value(firstKey);
    const QVariant second = entry.value(secondKey);
    if (!first.isValid() || !second.isValid() ||
        ValueCompare::holds(comparable(first, *comparison.first), comparison.operatorType,
                            comparable(second, *comparison.second)))
        return {};
    const QString message =
        Text::tr("%1 must be %2 to %3")
            .arg(comparison.first->caption(), reasonText(comparison.operatorType),
                 comparison.second->caption());
    return CheckFault{message, entry.id(), firstKey, secondKey, 0};
}

} // namespace

Failure RuleCheck::firstFailure(const DataTemplate& dataTemplate, const DrawScene& scene,
                                const Entries& entries, const QString& entryTitle)
{
    const CountRange range = dataTemplate.countRange();
    if (!range.contains(static_cast<int>(entries.size())))
        return CheckFault{wrongEntryCount(range, entryTitle), 0, {}, {}, 0};
    const EntryCheck check(dataTemplate, scene);
    for (const auto& entry : entries) {
        if (Failure failure = check.firstFailure(*entry))
            return failure;
    }
    return {};
}

Failure RuleCheck::failureOf(const CheckFault& fault, const DataTemplate& dataTemplate,
                             const DrawScene& scene, const RuleDataInfo& entry)
{
    return EntryCheck(dataTemplate, scene).failureOf(fault, entry);
}
