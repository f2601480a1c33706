#pragma once

#include "scene/basetabelscene.h"

class InputBoxTabel;

/**
 * The section of the camera's rules: each has a name, and figures that are drawn one after the
 * other in the template's order.
 */
class RuleScene : public BaseTabelScene
{
    Q_OBJECT

public:
    explicit RuleScene(QWidget* parent = nullptr);

    bool canRename() const override { return isBound() && m_nameRow; }
    void startRenaming() override;

public slots:
    void sltTabelDrawItemCheckBtnChanged() override;
    void sltDeleteDrawItem() override;
    void sltDrawItemSelected() override;
    void sltRuleNameChanged(const QString& key);

protected:
    QString heading() const override;
    void bindFixedRows() override;
    void loadFixedRows(const RuleDataInfo* entry) override;
    RuleProtocolItem* firstFigureItem(BaseDrawType pressed) const override;
    void prepareNewEntry(RuleDataInfo& entry) override;
    int pickedFigure(int dataId) const override;
    QList<int> dropsOnRedraw(const DrawItem& figure) const override;
    RuleProtocolItem* missingFigureItem(int dataId) const override;
    void nameEntry(int dataId) override;

private:
    bool startNextFigure();
    /// The first item behind that of @p finished for which its entry has no figure; null for none.
    RuleProtocolItem* nextFigureItem(const DrawItem& finished) const;

    InputBoxTabel* m_nameRow = nullptr; ///< child of the controls; made anew for each data
};
