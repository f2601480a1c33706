#pragma once

#include "Protocol/figurereader.h"

#include <QString>
#include <vector>

class DrawItem;
class RuleData;
class RuleDataInfo;
class RuleProtocolItem;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/**
 * Reads what a template's items name of one entry after another: values of control items into
 * the entry, figures onto the canvas. EntryWriter is its mirror.
 */
class EntryReader
{
public:
    /// Reads the items of @p data's template that belong to @p section. Nothing is owned.
    EntryReader(RuleData& data, const QString& section);

    /// Reads @p json into @p entry; figures go inside @p parent when there is one.
    void read(const kql::Json::Value& json, RuleDataInfo& entry,
              const DrawItem* parent = nullptr) const;
    /// Reads a rule: its items, name and enabled state.
    void readRule(const kql::Json::Value& json, RuleDataInfo& entry,
                  const DrawItem* parent = nullptr) const;

private:
    void parseJsonToDataItem(const RuleProtocolItem& item, const kql::Json::Value& json,
                             RuleDataInfo& entry, const DrawItem* parent) const;
    void addFigure(const RuleProtocolItem& item, const kql::Json::Value& json,
                   const QVector<QPoint>& points, const RuleDataInfo& entry,
                   const DrawItem* parent) const;

    std::vector<const RuleProtocolItem*> m_items;
    FigureReader m_figures;
};
