#pragma once

#include "scene/basetabelscene.h"

/// The section of the areas in which the algorithm looks at all.
class DetectionScene : public BaseTabelScene
{
    Q_OBJECT

public:
    explicit DetectionScene(QWidget* parent = nullptr);

protected:
    QString heading() const override;
};
