#pragma once

#include "Protocol/datatemplate.h"

#include <QCoreApplication>
#include <QStringList>
#include <optional>

class RuleData;

/// Template of the calibrate-area scene, with its five built-in items.
class CalibrateAreaTemplate : public DataTemplate
{
    Q_DECLARE_TR_FUNCTIONS(CalibrateAreaTemplate)

public:
    CalibrateAreaTemplate();
    /// That of @p data; null when it has one of another kind.
    static CalibrateAreaTemplate* of(const RuleData& data);
    std::unique_ptr<DataTemplate> clone() const override;
    DrawItemForbidenAreaType forbiddenArea(const RuleProtocolItem& item) const override;
    EdgeLabelMode edgeLabels(const RuleProtocolItem& item) const override;

    /// What setMethod() takes.
    static QStringList methods();
    /// "Lane" or "Scene": enables the staff items, sets their counts and the title; anything
    /// else changes nothing.
    void setMethod(const QString& method);
    const QString& method() const { return m_method; }
    bool isSceneMethod() const;
    bool isLaneMethod() const;
    /// Points of an area's polygon.
    void setAreaPointCount(CountRange range);
    /// Defaults of the length rows of new entries, in metres: height for the vertical row, width
    /// for the horizontal one. The items have them as their default values.
    void setDefaultWidth(double width);
    std::optional<double> defaultWidth() const { return m_defaultWidth; }
    void setDefaultHeight(double height);
    std::optional<double> defaultHeight() const { return m_defaultHeight; }

    RuleProtocolItem* regionItem() const;
    RuleProtocolItem* verticalStaffItem() const;
    RuleProtocolItem* horizontalStaffItem() const;
    RuleProtocolItem* verticalLengthItem() const;
    RuleProtocolItem* horizontalLengthItem() const;

protected:
    CalibrateAreaTemplate(const CalibrateAreaTemplate& other) = default;

private:
    QString m_method;
    std::optional<double> m_defaultWidth;
    std::optional<double> m_defaultHeight;
};
