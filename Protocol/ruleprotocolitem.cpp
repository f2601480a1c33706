#include "Protocol/ruleprotocolitem.h"

#include "Protocol/controlrow.h"
#include "Protocol/valuecompare.h"

#include <QObject>

namespace
{

constexpr CountRange kNotGiven{0, 0};
constexpr int kPolygonPoints = 3;
constexpr int kDirectionLinePoints = 2;

/// A range that no figure could meet, (-1, -1) as the usual one, sets no limit.
bool isUnlimited(CountRange range)
{
    return range.max < 1 || range.min > range.max;
}

} // namespace

void RuleProtocolItem::setRange(const QVariant& minimum, const QVariant& maximum)
{
    m_rangeMinimum = minimum;
    m_rangeMaximum = maximum;
}

void RuleProtocolItem::addValidity(ValidCondition condition)
{
    condition.comparable.clear();
    for (const QString& value : qAsConst(condition.values))
        condition.comparable.append(ComparableText::of(value, ValueType::Object));
    m_validity.append(condition);
}

void RuleProtocolItem::takeDetailsFrom(const RuleProtocolItem& other)
{
    m_facade = other.m_facade;
    m_caption = other.m_caption;
    m_units = other.m_units;
    m_rangeMinimum = other.m_rangeMinimum;
    m_rangeMaximum = other.m_rangeMaximum;
    m_default = other.m_default;
    m_enumeration = other.m_enumeration;
    m_hasAllChoice = other.m_hasAllChoice;
    m_countRange = other.m_countRange;
    m_pointCount = other.m_pointCount;
}

bool RuleProtocolItem::isFigure() const
{
    constexpr int kFirstControl = 100;
    return m_facade != FacadeType::None && static_cast<int>(m_facade) < kFirstControl;
}

std::optional<CountRange> RuleProtocolItem::figurePointLimits() const
{
    if (!isUnlimited(m_pointCount))
        return m_pointCount;
    if (drawType() == BaseDrawType::Polygon)
        return CountRange{kPolygonPoints, kAnyCount};
    if (drawType() == BaseDrawType::DirectionLine && m_pointCount != kNotGiven)
        return CountRange{kDirectionLinePoints, kAnyCount};
    return std::nullopt;
}

void RuleProtocolItem::setRow(ControlRow* row)
{
    m_row = row;
    m_rowObject = row ? row->rowObject() : nullptr;
}
