#pragma once

#include "scene/basetabelscene.h"

/// The section of the configuration that all rules share: one entry, no figures.
class GlobalScene : public BaseTabelScene
{
    Q_OBJECT

public:
    using BaseTabelScene::BaseTabelScene;

protected:
    QString heading() const override;
    bool wantsRow(const RuleProtocolItem& item) const override;
    void refreshTabelDrawItem() override {}
};
