#pragma once

#include <QList>

class DataTemplate;
class DrawItem;
class DrawScene;
class RuleProtocolItem;

/// A scene's figures by the entry that they belong to, and the template's item that they are for.
class EntryFigures
{
public:
    using Figures = QList<DrawItem*>;

    /// Neither is owned; the canvas must not change while this lives.
    EntryFigures(const DataTemplate& dataTemplate, const DrawScene& scene)
        : m_template(dataTemplate), m_scene(scene)
    {
    }

    /// The figures of the entry @p dataId in the scene's order.
    Figures of(int dataId) const;
    /// Those that the entry has for @p item.
    Figures of(int dataId, const RuleProtocolItem& item) const;
    /// The first of them; null when there is none.
    DrawItem* first(int dataId, const RuleProtocolItem& item) const;

private:
    const DataTemplate& m_template;
    const DrawScene& m_scene;
};
