#pragma once

#include <QPoint>
#include <QString>
#include <QVector>

class DrawItem;
class RuleData;
class RuleDataInfo;
class RuleProtocolItem;

/// Puts the figures that a document holds on a scene's canvas, as drawing them would.
class FigureReader
{
public:
    /// @p data is not owned.
    explicit FigureReader(RuleData& data) : m_data(data) {}

    /// Adds a finished figure of @p item with @p points (0..8192) for @p entry, inside
    /// @p parent when there is one. The scene owns the result; null when the item draws none
    /// or @p data has no room left.
    DrawItem* add(const RuleProtocolItem& item, const RuleDataInfo& entry,
                  const QVector<QPoint>& points, const QString& label,
                  const DrawItem* parent = nullptr) const;

private:
    RuleData& m_data;
};
