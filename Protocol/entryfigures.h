#pragma once

#include <QHash>
#include <QPoint>
#include <QVector>

class DataTemplate;
class DrawItem;
class RuleData;
class RuleProtocolItem;

/// A scene's figures by the entry that they belong to, listed once for writing all entries.
class EntryFigures
{
public:
    using Figures = QVector<const DrawItem*>;

    /// @p data is not owned; its canvas must not change while this lives.
    explicit EntryFigures(const RuleData& data);

    /// The figures of the entry @p dataId in the scene's order.
    Figures of(int dataId) const { return m_figures.value(dataId); }
    /// Those that the entry has for @p item.
    Figures of(int dataId, const RuleProtocolItem& item) const;
    /// The first of them; null when there is none.
    const DrawItem* first(int dataId, const RuleProtocolItem& item) const;

private:
    const DataTemplate& m_template;
    QHash<int, Figures> m_figures;
};
