#include "Protocol/rulecheck.h"

#include "Protocol/controlrow.h"
#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"
#include "draw/drawitem.h"

#include <QSize>

namespace
{

using Failure = std::optional<QString>;

constexpr int kEmpty = -1;
constexpr CountRange kAnyNumber{0, 0};

Failure checkEntryCount(const RuleData& data)
{
    const CountRange range = data.getTemplate()->countRange();
    if (range.contains(data.getDataCount()))
        return {};
    const QString minimum = QString::number(range.min);
    if (range.min == range.max)
        return RuleData::tr("Please add %1 %2.").arg(minimum, data.getRuleFucTitle());
    return RuleData::tr("Please add %1-%2 %3.")
        .arg(minimum, QString::number(range.max), data.getRuleFucTitle());
}

/// A range that the operator sees must have both ends.
Failure checkRange(const RuleProtocolItem& item)
{
    const ControlRow* const row = item.row();
    if (item.valueType() != ValueType::ArrayInt || !row || !row->isRowVisible())
        return {};
    const QVariant value = row->value();
    if (value.userType() != QMetaType::QSize)
        return {};
    const QSize range = value.toSize();
    if (range.width() == kEmpty) {
        return RuleData::tr("%1:%2").arg(item.caption(),
                                         RuleData::tr("The minimum value cannot be empty."));
    }
    if (range.height() == kEmpty) {
        return RuleData::tr("%1:%2").arg(item.caption(),
                                         RuleData::tr("The maximum value cannot be empty."));
    }
    return {};
}

Failure checkFinished(const QList<DrawItem*>& figures)
{
    for (const DrawItem* const figure : figures) {
        if (!figure->isFinished())
            return RuleData::tr("Please finish drawing %1.").arg(figure->label());
    }
    return {};
}

Failure checkFigures(const RuleData& data, const RuleDataInfo& entry, const RuleProtocolItem& item)
{
    const QList<DrawItem*> figures = data.figuresOf(entry.id(), item);
    const CountRange range = item.countRange();
    if (range.contains(figures.size()))
        return checkFinished(figures);
    if (range == kAnyNumber)
        return {};
    const QString minimum = QString::number(range.min);
    if (range.min == range.max)
        return RuleData::tr("Please draw %1 %2.").arg(minimum, item.caption());
    return RuleData::tr("Please draw %1-%2 %3.")
        .arg(minimum, QString::number(range.max), item.caption());
}

QString reasonText(CheckRuleOperatorType operatorType)
{
    switch (operatorType) {
    case CheckRuleOperatorType::Greater:
        return RuleData::tr("greater than");
    case CheckRuleOperatorType::Less:
        return RuleData::tr("less than");
    case CheckRuleOperatorType::Equal:
        return RuleData::tr("equal");
    case CheckRuleOperatorType::GreaterOrEqual:
        return RuleData::tr("greater than or equal");
    default:
        return RuleData::tr("less than or equal");
    }
}

Failure checkRule(const DataTemplate& dataTemplate, const RuleDataInfo& entry,
                  const CheckRule& rule)
{
    const RuleProtocolItem* const first = dataTemplate.findItem(rule.firstKey);
    const RuleProtocolItem* const second = dataTemplate.findItem(rule.secondKey);
    if (!first || !second || !entry.isValid(rule.firstKey) || !entry.isValid(rule.secondKey))
        return {};
    const QVariant firstValue = entry.value(rule.firstKey);
    const QVariant secondValue = entry.value(rule.secondKey);
    if (!firstValue.isValid() || !secondValue.isValid())
        return {};
    if (ValueCompare::holds(firstValue, rule.operatorType, secondValue))
        return {};
    return RuleData::tr("%1 must be %2 to %3")
        .arg(first->caption(), reasonText(rule.operatorType), second->caption());
}

Failure checkEntry(const RuleData& data, const RuleDataInfo& entry)
{
    for (const auto& item : data.getTemplate()->items()) {
        const Failure failure =
            item->isFigure() ? checkFigures(data, entry, *item) : checkRange(*item);
        if (failure)
            return failure;
    }
    for (const CheckRule& rule : data.getTemplate()->checkRules()) {
        if (const Failure failure = checkRule(*data.getTemplate(), entry, rule))
            return failure;
    }
    return {};
}

} // namespace

Failure RuleCheck::firstFailure(const RuleData& data)
{
    if (const Failure failure = checkEntryCount(data))
        return failure;
    for (const auto& entry : data.getAllData()) {
        if (const Failure failure = checkEntry(data, *entry))
            return failure;
    }
    return {};
}
