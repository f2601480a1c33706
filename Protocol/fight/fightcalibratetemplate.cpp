#include "Protocol/fight/fightcalibratetemplate.h"

#include "Protocol/ruleprotocolitem.h"

namespace
{

const auto kRegion = QStringLiteral("fightCalibrateRegion");
const auto kRect = QStringLiteral("fightCalibrateRect");

} // namespace

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
    regionItem()->setPointCount(range);
}

void FightCalibrateTemplate::setRectCount(CountRange range)
{
    rectItem()->setCountRange(range);
}

RuleProtocolItem* FightCalibrateTemplate::regionItem() const
{
    return findItem(kRegion);
}

RuleProtocolItem* FightCalibrateTemplate::rectItem() const
{
    return findItem(kRect);
}
