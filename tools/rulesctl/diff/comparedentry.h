#pragma once

#include "host/json/value.h"

#include <QPoint>
#include <QString>
#include <QVector>
#include <vector>

class RuleData;
class RuleDataInfo;
class RuleProtocolItem;

/**
 * One entry as it is compared: name, switch, values and figures, without its place and its ids.
 * Refers to the items of the template of the scene that it is from, which must outlive it.
 */
struct ComparedEntry {
    struct Attribute {
        const RuleProtocolItem* item;
        kql::Json::Value value; ///< null for none
    };
    struct Figure {
        const RuleProtocolItem* item;
        QVector<QPoint> points;     ///< in 0..8192
        QVector<QPoint> directions; ///< of a parallelogram; else empty
    };

    QString name;             ///< the button's text; empty without one
    kql::Json::Value ownName; ///< as it is saved; null where entries have none
    kql::Json::Value enabled; ///< likewise
    std::vector<Attribute> attributes;
    std::vector<Figure> figures; ///< that have points

    /// The entry of @p data at @p position.
    static ComparedEntry of(const RuleData& data, int position);

    /// All but the names, as one text, which is the same for what is the same by value.
    QString content() const;
    /// The figures that it has for the item @p key, in their order.
    std::vector<const Figure*> figuresOf(const QString& key) const;
};
