#pragma once

#include "scene/basetabelscene.h"

/// The section of the areas in which the algorithm looks at all.
class DetectionScene : public BaseTabelScene
{
    Q_OBJECT

public:
    explicit DetectionScene(QWidget* parent = nullptr);

    void setRuleData(RuleData* newData) override;

protected:
    QString heading() const override;
};
