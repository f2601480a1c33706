#pragma once

#include "Protocol/countrange.h"
#include "Protocol/jsonpath.h"
#include "Protocol/ruletypes.h"
#include "Protocol/spelling.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <optional>

class ControlRow;

/// One choice of an attribute's enumeration.
struct EnumOption {
    QString key;
    QString value;            ///< as stored in the configuration
    QString text;             ///< as shown
    QString description = {}; ///< tool tip
    bool isAll = false;       ///< exclusive: checking it unchecks the other boxes
};

/// An attribute applies while its controlling attribute has one of these values.
struct ValidCondition {
    QString controlKey;
    QStringList values;
    QStringList comparable = {}; ///< the values for attributes of types with several spellings
};

/**
 * One attribute of a template: where its value lives in the configuration, its type, what edits
 * it, and when it applies.
 */
class RuleProtocolItem
{
public:
    const QString& key() const { return m_key; }
    void setKey(const QString& key) { m_key = key; }
    /// The "parent" path of the section that the item came from.
    const QString& parent() const { return m_parent; }
    void setParent(const QString& parent) { m_parent = parent; }
    const JsonPath& path() const { return m_path; }
    void setPath(const QString& path) { m_path = JsonPath(path); }
    ValueType valueType() const { return m_valueType; }
    void setValueType(ValueType type) { m_valueType = type; }
    FacadeType facade() const { return m_facade; }
    void setFacade(FacadeType facade) { m_facade = facade; }
    const QString& caption() const { return m_caption; }
    void setCaption(const QString& caption) { m_caption = caption; }
    const QString& units() const { return m_units; }
    void setUnits(const QString& units) { m_units = units; }

    /// Limits of the value; invalid variants where there is none.
    void setRange(const QVariant& minimum, const QVariant& maximum);
    const QVariant& rangeMinimum() const { return m_rangeMinimum; }
    const QVariant& rangeMaximum() const { return m_rangeMaximum; }
    /// How many figures one entry has for this item; (0, 0) is any number.
    CountRange countRange() const { return m_countRange; }
    void setCountRange(CountRange range) { m_countRange = range; }

    const QVariant& defaultValue() const { return m_default; }
    void setDefaultValue(const QVariant& value) { m_default = value; }
    const QList<EnumOption>& enumeration() const { return m_enumeration; }
    void setEnumeration(const QList<EnumOption>& options) { m_enumeration = options; }
    /// Whether one of the options is an "all" choice.
    bool hasAllChoice() const { return m_hasAllChoice; }
    void setHasAllChoice(bool has) { m_hasAllChoice = has; }

    /// Position inside an array-valued field; -1 for the field itself.
    int index() const { return m_index; }
    void setIndex(int index) { m_index = index; }

    /// Points of a figure as the template gives them: (0, 0) not given, (-1, -1) no limit.
    CountRange pointCount() const { return m_pointCount; }
    void setPointCount(CountRange range) { m_pointCount = range; }
    /// Limits to apply to a new figure of this item; nothing leaves those of its kind.
    std::optional<CountRange> figurePointLimits() const;

    const QList<ValidCondition>& validity() const { return m_validity; }
    void addValidity(ValidCondition condition);
    const QStringList& dependencies() const { return m_dependencies; }
    void setDependencies(const QStringList& keys) { m_dependencies = keys; }
    /// Name of the section or template that the item belongs to.
    const QString& templateName() const { return m_templateName; }
    void setTemplateName(const QString& name) { m_templateName = name; }
    /// The figure item that this one is drawn inside of; not owned.
    const RuleProtocolItem* linkedItem() const { return m_linkedItem; }
    void setLinkedItem(const RuleProtocolItem* item) { m_linkedItem = item; }
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }

    bool isFigure() const;
    bool isControl() const { return !isFigure() && m_facade != FacadeType::None; }
    BaseDrawType drawType() const { return Spelling::toDrawType(m_facade); }

    /// Takes over what @p other was given beside its own place: caption, facade, limits, choices.
    /// The texts are shared.
    void takeDetailsFrom(const RuleProtocolItem& other);

    /// The row that edits this item; null when there is none or it is gone. Not owned.
    ControlRow* row() const { return m_rowObject ? m_row : nullptr; }
    void setRow(ControlRow* row);

private:
    QString m_key;
    QString m_parent;
    JsonPath m_path;
    QString m_caption;
    QString m_units;
    QString m_templateName;
    QVariant m_rangeMinimum;
    QVariant m_rangeMaximum;
    QVariant m_default;
    QList<EnumOption> m_enumeration;
    QList<ValidCondition> m_validity;
    QStringList m_dependencies;
    const RuleProtocolItem* m_linkedItem = nullptr;
    ControlRow* m_row = nullptr;
    QPointer<const QObject> m_rowObject;
    ValueType m_valueType = ValueType::None;
    FacadeType m_facade = FacadeType::None;
    CountRange m_countRange;
    CountRange m_pointCount;
    int m_index = -1;
    bool m_hasAllChoice = false;
    bool m_enabled = true;
};
