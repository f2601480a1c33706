#include "Protocol/fight/fightcalibratetemplate.h"

#include "Protocol/ruleprotocolitem.h"

FightCalibrateTemplate::FightCalibrateTemplate()
{
    setName(QStringLiteral("fightCalibrate"));
    setTitle(tr("Fight configuration"));
    RuleProtocolItem* const region = addBuiltIn(kRegion, QStringLiteral("CalibrateArea.Area[]"),
                                                FacadeType::Region, tr("Calibrate area"));
    region->setCountRange({1, 1});
    RuleProtocolItem* const rect = addBuiltIn(kRect, QStringLiteral("CalibrateArea.Rects[]"),
                                              FacadeType::Rect, tr("Calibrate rect"));
    rect->setPointCount({2, 2});
    rect->setLinkedItem(region);
}

std::unique_ptr<DataTemplate> FightCalibrateTemplate::clone() const
{
    return std::unique_ptr<DataTemplate>(new FightCalibrateTemplate(*this));
}

void FightCalibrateTemplate::setAreaPointCount(CountRange range)
{
    findItem(kRegion)->setPointCount(range);
}

void FightCalibrateTemplate::setRectCount(CountRange range)
{
    findItem(kRect)->setCountRange(range);
}
