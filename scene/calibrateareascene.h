#pragma once

#include "scene/basetabelscene.h"

class CalibrateAreaTemplate;
class InputBoxTabel;

/// The section of the calibrate areas, with the rulers drawn inside them.
class CalibrateAreaScene : public BaseTabelScene
{
    Q_OBJECT

public:
    explicit CalibrateAreaScene(QWidget* parent = nullptr);

    void setRuleData(RuleData* newData) override;

protected:
    void bindFixedRows() override;
    void checkLayout() override;

private:
    const CalibrateAreaTemplate* calibrateTemplate() const;
    bool isSceneMethod() const;
    void markWithoutLength(ControlTabel& row);
    void updateLengthRow(InputBoxTabel* row, BaseDrawType rulerType);

    // Children of the controls, made anew for each data; null without data.
    InputBoxTabel* m_verticalRow = nullptr;
    InputBoxTabel* m_horizontalRow = nullptr;
};
