#include "scene/detectionscene.h"

#include "Protocol/ruledata.h"

DetectionScene::DetectionScene(QWidget* parent) : BaseTabelScene(parent)
{
    addFucButton(widgets().ruleFucBar, BaseDrawType::Polygon, tr("Detection area"));
    checkLayout();
}

void DetectionScene::setRuleData(RuleData* newData)
{
    if (newData)
        newData->setRuleFucTitle(tr("Detection area"));
    BaseTabelScene::setRuleData(newData);
}

QString DetectionScene::heading() const
{
    return tr("Detection configuration");
}
