#include "scene/detectionscene.h"

DetectionScene::DetectionScene(QWidget* parent) : BaseTabelScene(parent)
{
    addFucButton(widgets().ruleFucBar, BaseDrawType::Polygon, tr("Detection area"));
    checkLayout();
}

QString DetectionScene::heading() const
{
    return tr("Detection configuration");
}
