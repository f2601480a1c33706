#pragma once

#include "host/json/fwd.h"

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
    /// or @p data may take up no more text.
    DrawItem* add(const RuleProtocolItem& item, const RuleDataInfo& entry,
                  const QVector<QPoint>& points, const QString& label,
                  DrawItem* parent = nullptr) const;

    /// As above, of the points where @p item has its place in @p json; null when there are none.
    DrawItem* read(const RuleProtocolItem& item, const RuleDataInfo& entry,
                   const kql::Json::Value& json, const QString& label) const;

private:
    RuleData& m_data;
};
