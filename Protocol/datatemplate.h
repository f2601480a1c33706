#pragma once

#include "Protocol/countrange.h"
#include "Protocol/ruletypes.h"
#include "draw/figuretypes.h"

#include <QList>
#include <QMap>
#include <QString>
#include <memory>
#include <vector>

class DrawItem;
class RuleProtocolItem;

/// A cross-field check between two attributes of one entry.
struct CheckRule {
    QString firstKey;
    QString secondKey;
    CheckRuleOperatorType operatorType = CheckRuleOperatorType::None;
};

/// Attributes that are read and written together.
struct TemplateSection {
    QString name;   ///< the items' template name
    QString parent; ///< path of the entries in the configuration
};

/// What one scene's entries are made of. Owns its items, figures and controls in template order.
class DataTemplate
{
public:
    using Items = std::vector<std::unique_ptr<RuleProtocolItem>>;

    DataTemplate();
    virtual ~DataTemplate();
    DataTemplate& operator=(const DataTemplate&) = delete;

    /// A copy whose items have no rows; links lead to the copy's own items.
    virtual std::unique_ptr<DataTemplate> clone() const;

    const QString& name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }
    /// Path of the entries in the configuration.
    const QString& parent() const { return m_parent; }
    void setParent(const QString& parent) { m_parent = parent; }
    /// How many entries the scene may have.
    CountRange countRange() const { return m_countRange; }
    void setCountRange(CountRange range) { m_countRange = range; }
    /// Heading of the scene's panel, translated.
    const QString& title() const { return m_title; }
    void setTitle(const QString& title) { m_title = title; }

    const Items& items() const { return m_items; }
    void setItems(Items items);
    /// An item's key stays as it is from here on.
    RuleProtocolItem* addItem(std::unique_ptr<RuleProtocolItem> item);
    /// The first item with that key; null when there is none.
    RuleProtocolItem* findItem(const QString& key) const;
    /// The figure items in template order.
    QList<RuleProtocolItem*> figureItems() const;
    /// The first figure item of that kind; null when there is none.
    RuleProtocolItem* figureItem(BaseDrawType type) const;
    /// Whether @p figure was read or drawn for @p item. One that names no item counts for the
    /// first of its kind.
    bool isFigureFor(const DrawItem& figure, const RuleProtocolItem& item) const;

    /// What the entries are made of: one section, unless the scene was handed another one's items.
    virtual std::vector<TemplateSection> sections() const { return {{m_name, m_parent}}; }
    /// Where the figures of @p item may not be drawn.
    virtual DrawItemForbidenAreaType forbiddenArea(const RuleProtocolItem& item) const;
    /// The same for a figure that is there; one inside of another has to stay there.
    DrawItemForbidenAreaType forbiddenAreaOf(const DrawItem& figure) const;
    /// What is written at the edges of the figures of @p item.
    virtual EdgeLabelMode edgeLabels(const RuleProtocolItem& /*item*/) const
    {
        return EdgeLabelMode::Name;
    }

    const QList<CheckRule>& checkRules() const { return m_checkRules; }
    void addCheckRule(const CheckRule& rule) { m_checkRules.append(rule); }

protected:
    /// Copies all but the items' rows.
    DataTemplate(const DataTemplate& other);
    /// Adds an item that this module brings along, filed under this template's name.
    RuleProtocolItem* addBuiltIn(const QString& key, const QString& path, FacadeType facade,
                                 const QString& caption);

private:
    QString m_name;
    QString m_parent;
    QString m_title;
    CountRange m_countRange{0, kAnyCount};
    Items m_items;
    mutable QMap<QString, RuleProtocolItem*> m_itemsByKey; ///< the first of each key, when needed
    QList<CheckRule> m_checkRules;
};
