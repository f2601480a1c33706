#pragma once

#include "draw/figuretypes.h"

#include <QCoreApplication>
#include <memory>

class ControlItemWidgetTabel;
class ControlTabel;
class DrawItem;
class RuleData;
class RuleDataInfo;
class RuleProtocolItem;

/**
 * The row for the direction of a statistics region, in panels whose template has one. It edits
 * the entry's parallelograms themselves: entries hold no value for it.
 */
class StatisticsDirection
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsDirection)

public:
    StatisticsDirection();
    ~StatisticsDirection();

    /// Key of the row.
    static QString key();

    /// Adds the row to @p rows when the template of @p data has a statistics region.
    void bind(const RuleData& data, ControlItemWidgetTabel& rows);
    /// Forgets the row, which must be released or gone.
    void release();

    /// Shows the direction of the entry's first parallelogram.
    void load(const RuleData& data, const RuleDataInfo& entry);
    /// Gives a new parallelogram the direction that the row shows; other figures none.
    void giveTo(DrawItem& figure);
    /// Gives the entry's parallelograms the direction that the row shows.
    void apply(const RuleData& data, const RuleDataInfo& entry) const;

    /// What the row shows; invalid without a row.
    QVariant chosen() const;
    /// Shows @p direction for an entry that has no parallelogram yet: then only the row knows it.
    void choose(const RuleData& data, const RuleDataInfo& entry, const QVariant& direction);

private:
    static std::unique_ptr<RuleProtocolItem> makeItem();
    BaseDrawDirectionType shown() const;
    void show(BaseDrawDirectionType direction);

    std::unique_ptr<RuleProtocolItem> m_item;
    ControlTabel* m_row = nullptr; ///< not owned; null while unbound
};
