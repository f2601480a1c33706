#pragma once

#include "draw/drawitemrange.h"

#include <QVector>

class DataTemplate;
class DrawItem;
class DrawScene;
class RuleData;
class RuleProtocolItem;

/// A scene's figures by the entry that they belong to.
class EntryFigures
{
public:
    using Figures = QVector<const DrawItem*>;

    /// @p data is not owned; its canvas must not change while this lives.
    explicit EntryFigures(const RuleData& data);

    /// The figures of the entry @p dataId in the scene's order.
    DrawItemRange of(int dataId) const;
    /// Those that the entry has for @p item.
    Figures of(int dataId, const RuleProtocolItem& item) const;
    /// The first of them; null when there is none.
    const DrawItem* first(int dataId, const RuleProtocolItem& item) const;
    /// Whether @p figure was read or drawn for @p item.
    bool isFor(const DrawItem& figure, const RuleProtocolItem& item) const;

private:
    const DataTemplate& m_template;
    const DrawScene& m_scene;
};
