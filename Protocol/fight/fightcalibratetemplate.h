#pragma once

#include "Protocol/datatemplate.h"

#include <QCoreApplication>

/// Template of the fight-calibrate scene, with its two built-in figure items.
class FightCalibrateTemplate : public DataTemplate
{
    Q_DECLARE_TR_FUNCTIONS(FightCalibrateTemplate)

public:
    inline static const QString kRegion = QStringLiteral("fightCalibrateRegion");
    inline static const QString kRect = QStringLiteral("fightCalibrateRect");

    FightCalibrateTemplate();
    std::unique_ptr<DataTemplate> clone() const override;

    /// Points of an area's polygon.
    void setAreaPointCount(CountRange range);
    /// Rectangles inside one area.
    void setRectCount(CountRange range);

protected:
    FightCalibrateTemplate(const FightCalibrateTemplate& other) = default;
};
