#include "scene/fightcalibratescene.h"

FightCalibrateScene::FightCalibrateScene(QWidget* parent) : BaseTabelScene(parent)
{
    addFucButton(widgets().ruleFucBar, BaseDrawType::Polygon, tr("Calibrate area"));
    addFucButton(widgets().childFucBar, BaseDrawType::Rectangle, tr("Calibrate rect"));
    checkLayout();
}
