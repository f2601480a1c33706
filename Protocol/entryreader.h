#pragma once

#include "Protocol/figurereader.h"
#include "host/json/fwd.h"

#include <QString>
#include <QVariant>
#include <set>
#include <vector>

class DrawItem;
class RuleData;
class RuleDataInfo;
class RuleProtocolItem;

/**
 * Reads what a template's items name of one entry after another: values of control items into
 * the entry, figures onto the canvas. Many items may name the same place; what they read of it all
 * together has a limit, at which the data is cut short. EntryWriter is its mirror.
 */
class EntryReader
{
public:
    /// Reads the items of @p data's template that belong to @p section. Nothing is owned.
    EntryReader(RuleData& data, const QString& section);

    /// Reads @p json into @p entry; figures go inside @p parent when there is one.
    void read(const kql::Json::Value& json, RuleDataInfo& entry, DrawItem* parent = nullptr) const;
    /// Reads a rule: its items, name and enabled state.
    void readRule(const kql::Json::Value& json, RuleDataInfo& entry,
                  DrawItem* parent = nullptr) const;
    /// Reads the name and the enabled state of a rule.
    static void readMembers(const kql::Json::Value& json, RuleDataInfo& entry);
    /// The characters of the texts that @p value holds, as they count.
    static qint64 textIn(const QVariant& value);
    /// Reads @p found, which lies where @p item has its place, into @p entry.
    void readValue(const RuleProtocolItem& item, const kql::Json::Value& found,
                   RuleDataInfo& entry) const;

private:
    void parseJsonToDataItem(const RuleProtocolItem& item, const kql::Json::Value& json,
                             RuleDataInfo& entry, DrawItem* parent) const;
    QVariant parseValue(const RuleProtocolItem& item, const kql::Json::Value& found) const;
    void addFigure(const RuleProtocolItem& item, const kql::Json::Value& json,
                   const QVector<QPoint>& points, const RuleDataInfo& entry,
                   DrawItem* parent) const;

    RuleData& m_data;
    std::vector<const RuleProtocolItem*> m_items;
    FigureReader m_figures;
    mutable std::set<QString> m_choices; ///< texts of enumerations, which entries share
};
