#pragma once

#include "draw/figuretypes.h"
#include "scene/scenesection.h"
#include "scene/statisticsdirection.h"

#include <QList>
#include <QPointer>
#include <functional>
#include <memory>

struct CheckFault;
class ControlTabel;
class DrawFucButton;
class DrawItem;
class DrawItemButton;
class DrawScene;
class RuleData;
class RuleDataInfo;
class RuleProtocolItem;
class SceneState;

/**
 * The foldable section that edits one scene of the configuration: a button for each entry,
 * buttons that draw figures, and the rows of the entry's attributes. It keeps the selection here
 * and on the canvas in step.
 *
 * The data is not owned. Whoever owns it calls setRuleData(nullptr) before deleting it; the
 * section's destructor does not touch it.
 */
class BaseTabelScene : public SceneSection
{
    Q_OBJECT

public:
    explicit BaseTabelScene(QWidget* parent = nullptr);
    ~BaseTabelScene() override;

    /// Shows @p newData, its first entry being current. Null lets go of all data.
    virtual void setRuleData(RuleData* newData);
    RuleData* ruleData() const { return m_data; }
    /// The data's canvas; null without data.
    DrawScene* getDrawScene() const;

    /// True from the first action that draws until it is set otherwise.
    virtual void SetDrawStatus(bool drawing) { m_drawStatus = drawing; }
    virtual bool GetDrawStatus() const { return m_drawStatus; }

    /// Lays the section out again after its font changed.
    void fitToFont();

    /// Read-only sections start no drawing by themselves; whoever holds them disables them.
    void setUIEditable(bool editable) { m_uiEditable = editable; }

    /// Shows entries and figures as they were in @p state, with the entry @p dataId current where
    /// the state has it, and what was in hand then in hand again. The data must be there.
    void restore(const SceneState& state, int dataId);

    /// Whether the operator can add entries here at all, and work on those that are there.
    bool takesEntries() const;
    /// Whether there are as many as there may be.
    bool isFull() const;
    /// Makes the entry current, which may just have been added to the data, without starting what
    /// it lacks. False when the section, or its data, is gone by then.
    bool makeCurrent(int dataId);
    /// Shows an entry and the figure of one of its buttons, 0 for none, to be looked at and nothing
    /// else: none is drawn on, and what message 222 answers stays what it was.
    void lookAt(int dataId, int itemId);
    QString hintText() const override;
    /// Whether entries have a row for their name.
    virtual bool canRename() const { return false; }
    /// Gives the row for the current entry's name the focus.
    virtual void startRenaming() {}

    /// Makes the entry at fault the current one. Where it lacks a figure of its own that is
    /// started; no other is.
    void showFault(const CheckFault& fault);
    /// Makes the button of that figure, else of its entry, stand out, and no other; null for none.
    void emphasise(const DrawItem* item);
    /// Marks where a save was refused; without a fault nothing is marked.
    void markFault(const CheckFault* fault);
    /// The widget to mend it with; null when there is none that can be used now.
    QWidget* placeOf(const CheckFault& fault) const;

    /// A new row for @p item by its facade; null for no item and for facades without a row.
    ControlTabel* addControlTabel(RuleProtocolItem* item, QWidget* parent);
    /// A new figure of the template's first item of that kind, not yet on the canvas; null when
    /// the template has none.
    std::unique_ptr<DrawItem> createDrawItem(BaseDrawType type, const RuleDataInfo* entry,
                                             DrawItemForbidenAreaType forbidden) const;
    /// A new button in the child table; null for no item.
    DrawItemButton* createChildDrawItemButton(const QString& label, const DrawItem* item);

public slots:
    virtual void sltTabelRuleFucBtnClicked(int type);
    /// Called without a button it draws the first item of the kind.
    virtual void sltTabelChildRuleFucBtnClicked(int type);
    virtual void sltTabelDrawItemCheckBtnChanged();
    virtual void sltTabelChildDrawItemCheckBtnChanged();
    virtual void sltDeleteDrawItem();
    virtual void sltRedrawItem();
    virtual void sltDrawItemSelected();
    virtual void sltRuleEnableChanged(int dataId, bool on);
    void sltTabelAttrControlValueChange(const QString& key);

signals:
    /// The operator edited the row of that key; tells it before sgnRepaintCanvas().
    void sgnRowEdited(const QString& key);
    /// The operator asks what can be done with an entry, at that place of the screen.
    void sgnMenuWanted(int dataId, const QPoint& place);
    /// What is edited changed, or something on the canvas may look different now.
    void sgnRepaintCanvas();
    /// The canvas looks different, but nothing was changed.
    void sgnLookChanged();

protected:
    bool hasCurrentEntry() const override;
    QString actedOn() const override;
    virtual void refreshTabelDrawItem();
    virtual void refreshChildTabelDrawItem();
    virtual void tabelAttrControlValueChange(const QString& key);

    // What kinds of sections differ in. All are called with data, template and canvas present.

    virtual QString heading() const;
    /// Binds rows of the section's own, before those of the template's other items are made.
    virtual void bindFixedRows() {}
    virtual bool wantsRow(const RuleProtocolItem& /*item*/) const { return true; }
    /// Shows the current entry in rows that stand for no value of it.
    virtual void loadFixedRows(const RuleDataInfo* entry);
    /// The item to draw first for a new entry; null for an entry without a figure.
    virtual RuleProtocolItem* firstFigureItem(BaseDrawType pressed) const;
    virtual bool canAddEntry(BaseDrawType pressed) const;
    virtual void prepareNewEntry(RuleDataInfo& /*entry*/) {}
    /// Called before an entry is picked.
    virtual void nameEntry(int /*dataId*/) {}
    /// Item id of the figure that picking the entry selects; 0 for none.
    virtual int pickedFigure(int dataId) const;
    /// The figures that go when @p figure is drawn anew.
    virtual QList<int> dropsOnRedraw(const DrawItem& figure) const;
    /// The first item that the entry should have a figure for but has none; null for none.
    virtual RuleProtocolItem* missingFigureItem(int dataId) const;

    /// Whether data, template and canvas are there.
    bool isBound() const;
    /// The item whose first figure stands for an entry; null when none does.
    RuleProtocolItem* entryFigureItem() const;
    /// Whether one figure may lead on to the next by itself.
    bool mayFollow() const;
    /// Adds a figure of @p item to the entry and starts drawing it.
    void startFigure(const RuleProtocolItem& item, const RuleDataInfo& entry);
    void addFixedRow(ControlTabel* row, RuleProtocolItem* item, const QString& title);
    DrawFucButton* addFucButton(RuleWidgetTabel* bar, BaseDrawType type, const QString& text);

private:
    void connectWidgets();
    /// Does what the operator asked for, if there is data, and shows what came of it. An edit in
    /// progress ends before: it belongs to the entry that is still selected. Where the focus moves
    /// meanwhile, the host may let go of the data or delete the section.
    void perform(const std::function<void()>& action);
    void release();
    void bindRows();
    void showFirstEntry();
    void showEntry(int dataId);
    void selectFigure(int itemId, int dataId);
    /// Emphasises on the canvas what the button under the pointer stands for.
    void showPointed();
    void pickFault(const CheckFault& fault);
    void startMissing(const CheckFault& fault);
    void loadEntry();
    void addEntry(BaseDrawType pressed);
    /// Null when the item draws no figure; else one that is not on the canvas yet.
    std::unique_ptr<DrawItem> makeFigure(const RuleProtocolItem& item, const RuleDataInfo& entry,
                                         DrawItemForbidenAreaType forbidden) const;
    /// Null when the item draws no figure. The new figure is not selected yet.
    /// Without a parent it is an entry's own, drawn where the template says.
    DrawItem* addFigure(const RuleProtocolItem& item, const RuleDataInfo& entry, int parentId = -1);
    void pressChildFuc(int type, const QString& itemKey);
    void addChildFigure(BaseDrawType type, const QString& itemKey);
    void deleteCurrent();
    void deleteChild(int itemId);
    void deleteEntry(int dataId);
    void redrawCurrent();
    void redrawFigure(const DrawItem& figure);
    void setPartsEnabled(bool enabled);

    RuleData* m_data = nullptr; ///< not owned
    QPointer<DrawItemButton> m_emphasised;
    StatisticsDirection m_direction;
    QString m_pressedItem; ///< of the child-function button that is being answered
    bool m_drawStatus = false;
    bool m_uiEditable = true;
    bool m_nothingFollows = false; ///< during loads, deletes and redraws
};
