#pragma once

#include "scene/basetabelscene.h"

class LanesTemplate;

/// The section of the vehicle lanes, and of the rules' attributes where these are edited per lane.
class LanesScene : public BaseTabelScene
{
    Q_OBJECT

public:
    explicit LanesScene(QWidget* parent = nullptr);

    void setRuleData(RuleData* newData) override;

protected:
    void bindFixedRows() override;
    bool canAddEntry(BaseDrawType pressed) const override;
    void prepareNewEntry(RuleDataInfo& entry) override;
    void tabelAttrControlValueChange(const QString& key) override;

private:
    LanesTemplate* lanesTemplate() const;
    void addRuleButtons();
};
