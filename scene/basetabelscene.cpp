#include "scene/basetabelscene.h"

#include "Protocol/checkfault.h"
#include "Protocol/datatemplate.h"
#include "Protocol/figurelabels.h"
#include "Protocol/figuremaker.h"
#include "Protocol/linedirections.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/sceneopening.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "Protocol/scenestate.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/api/limits.h"
#include "host/api/rowcontract.h"
#include "scene/drawinghint.h"
#include "scene/entrybuttons.h"
#include "scene/entryrows.h"
#include "scene/faultmarks.h"
#include "scene/scenefigures.h"
#include "scene/scenetitlebar.h"
#include "tabel/controlfactory.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"
#include "tabel/drawfucbutton.h"
#include "tabel/drawitembutton.h"
#include "tabel/layoutpause.h"
#include "tabel/ruleitemwidgettabel.h"
#include "tabel/rulewidgettabel.h"
#include "tabel/titlelabel.h"

#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>

#include <utility>

namespace
{

// Rows sit close together. Their captions share a width, within which longer ones are elided.
constexpr int kRowLeft = 5;
constexpr int kRowTop = 4;
constexpr int kMinCaptionWidth = 96;
constexpr int kMaxCaptionWidth = 128;

void alignRows(const QList<ControlTabel*>& rows)
{
    int captionWidth = kMinCaptionWidth;
    for (const ControlTabel* row : rows)
        captionWidth = qMax(captionWidth, row->titleLabel()->sizeHint().width());
    for (ControlTabel* row : rows) {
        row->setPaddingLeft(kRowLeft);
        row->setPaddingTop(kRowTop);
        row->setCaptionWidth(qMin(captionWidth, kMaxCaptionWidth), kMaxCaptionWidth);
    }
}

} // namespace

BaseTabelScene::BaseTabelScene(QWidget* parent) : SceneSection(parent)
{
    connectWidgets();
    checkLayout();
}

BaseTabelScene::~BaseTabelScene()
{
    // An edit that ends with its row has nowhere to go any more.
    widgets().controls->disconnect(this);
}

void BaseTabelScene::connectWidgets()
{
    connect(widgets().ruleFucBar, &RuleWidgetTabel::sgnBtnClicked, this,
            &BaseTabelScene::sltTabelRuleFucBtnClicked);
    connect(widgets().childFucBar, &RuleWidgetTabel::sgnBtnClicked, this,
            &BaseTabelScene::pressChildFuc);
    connect(widgets().drawItems, &RuleItemWidgetTabel::sgnCheckBtnChanged, this,
            &BaseTabelScene::sltTabelDrawItemCheckBtnChanged);
    connect(widgets().drawItems, &RuleItemWidgetTabel::sgnEnableChanged, this,
            &BaseTabelScene::sltRuleEnableChanged);
    connect(widgets().drawItems, &RuleItemWidgetTabel::sgnMenuWanted, this,
            &BaseTabelScene::sgnMenuWanted);
    connect(widgets().childDrawItems, &RuleItemWidgetTabel::sgnCheckBtnChanged, this,
            &BaseTabelScene::sltTabelChildDrawItemCheckBtnChanged);
    for (const RuleItemWidgetTabel* table : {widgets().drawItems, widgets().childDrawItems})
        connect(table, &RuleItemWidgetTabel::sgnPointed, this, &BaseTabelScene::showPointed);
    connect(widgets().redrawButton, &QPushButton::clicked, this, &BaseTabelScene::sltRedrawItem);
    connect(widgets().deleteButton, &QPushButton::clicked, this,
            &BaseTabelScene::sltDeleteDrawItem);
    connect(widgets().controls, &ControlItemWidgetTabel::sgnValueChanged, this,
            &BaseTabelScene::sltTabelAttrControlValueChange);
}

void BaseTabelScene::setRuleData(RuleData* newData)
{
    const LayoutPause pause(this);
    if (newData)
        SceneOpening::complete(*newData);
    release();
    m_data = newData;
    if (isBound()) {
        setObjectName(m_data->getTemplate()->name());
        widgets().titleBar->setTitle(heading());
        setAccessibleName(widgets().titleBar->title());
        bindRows();
        connect(getDrawScene(), &DrawScene::sgnSelectedStatusChange, this,
                &BaseTabelScene::sltDrawItemSelected);
        SceneOpening::turnLines(*m_data);
        showFirstEntry();
        setFold(false);
    }
    // Not before its rows are made, which readers of the screen would not know otherwise.
    widgets().controls->setEnabled(!getSelectMode());
    checkLayout();
}

void BaseTabelScene::fitToFont()
{
    alignRows(widgets().controls->controls());
    checkLayout();
}

void BaseTabelScene::release()
{
    if (getDrawScene())
        disconnect(getDrawScene(), nullptr, this, nullptr);
    const DataTemplate* dataTemplate = m_data ? m_data->getTemplate() : nullptr;
    m_data = nullptr;
    EntryRows::release(*widgets().controls, dataTemplate);
    m_direction.release();
    widgets().drawItems->deleteAll();
    widgets().childDrawItems->deleteAll();
    widgets().controls->deleteAll();
}

bool BaseTabelScene::isBound() const
{
    return m_data && m_data->getTemplate() && m_data->getDrawScene();
}

DrawScene* BaseTabelScene::getDrawScene() const
{
    return m_data ? m_data->getDrawScene() : nullptr;
}

QString BaseTabelScene::heading() const
{
    return m_data->getTemplate()->title();
}

void BaseTabelScene::bindRows()
{
    const LayoutPause pause(widgets().controls);
    bindFixedRows();
    m_direction.bind(*m_data, *widgets().controls);
    for (const auto& item : m_data->getTemplate()->items()) {
        if (!item->isControl() || item->row() || !wantsRow(*item))
            continue;
        if (ControlTabel* row = addControlTabel(item.get(), widgets().controls))
            widgets().controls->addControl(row, false);
    }
    alignRows(widgets().controls->controls());
}

ControlTabel* BaseTabelScene::addControlTabel(RuleProtocolItem* item, QWidget* parent)
{
    return createControlTabel(item, parent);
}

void BaseTabelScene::addFixedRow(ControlTabel* row, RuleProtocolItem* item, const QString& title)
{
    row->setProtocolItem(item);
    row->setTitle(title);
    row->setObjectName(item->key());
    widgets().controls->addControl(row, false);
}

DrawFucButton* BaseTabelScene::addFucButton(RuleWidgetTabel* bar, BaseDrawType type,
                                            const QString& text)
{
    auto* button = new DrawFucButton(type, text, bar);
    button->setVisible(true);
    bar->addButton(button);
    return button;
}

void BaseTabelScene::showFirstEntry()
{
    const QScopedValueRollback<bool> guard(m_nothingFollows, true);
    const int first = SceneOpening::showFirst(*m_data);
    refreshTabelDrawItem();
    showEntry(first);
}

void BaseTabelScene::showEntry(int dataId)
{
    m_data->setSelectedDataId(dataId);
    widgets().drawItems->setCurrentButton(widgets().drawItems->findDataButton(dataId), false);
    refreshChildTabelDrawItem();
    loadEntry();
    getDrawScene()->setSelected(pickedFigure(dataId), dataId);
}

void BaseTabelScene::restore(const SceneState& state, int dataId)
{
    if (!takeFocusFrom(*widgets().drawItems) || !takeFocusFrom(*widgets().childDrawItems) ||
        !isBound())
        return;
    const QScopedValueRollback<bool> guard(m_nothingFollows, true);
    const bool drewBefore = GetDrawStatus();
    const int shownBefore = m_data->getSelectedDataId();
    const QVariant direction = m_direction.chosen();
    const bool changesFigures = state.restore(*m_data);
    SceneOpening::turnLines(*m_data);
    const int shown = state.entry(dataId) ? dataId : state.selectedDataId();
    m_data->setSelectedDataId(shown);
    refreshTabelDrawItem();
    showEntry(shown);
    if (const RuleDataInfo* entry = m_data->getDataInfo(shown); entry && shown == shownBefore)
        m_direction.choose(*m_data, *entry, direction);
    const FigureState* const selected = state.figure(state.selectedItemId());
    if (!selected || selected->dataId == shown)
        selectFigure(state.selectedItemId(), shown);
    getDrawScene()->resumeDrawing();
    SetDrawStatus(drewBefore || changesFigures);
    checkLayout();
    showPointed();
}

bool BaseTabelScene::takesEntries() const
{
    return isBound() && !getSelectMode() && !widgets().ruleFucBar->buttons().isEmpty();
}

bool BaseTabelScene::isFull() const
{
    const CountRange count = m_data->getTemplate()->countRange();
    return m_data->getDataCount() >= qMin(count.max, Limits::kEntries) ||
           !canAddEntry(widgets().ruleFucBar->drawTypes().value(0));
}

bool BaseTabelScene::makeCurrent(int dataId)
{
    const QPointer<BaseTabelScene> self(this);
    const bool isNew = isBound() && !widgets().drawItems->findDataButton(dataId);
    const bool isThere = takeFocusFrom(*widgets().drawItems) &&
                         takeFocusFrom(*widgets().childDrawItems) && isBound() &&
                         m_data->getDataInfo(dataId);
    if (!isThere)
        return false;
    const QScopedValueRollback<bool> guard(m_nothingFollows, true);
    m_data->setSelectedDataId(dataId);
    if (isNew)
        refreshTabelDrawItem();
    showEntry(dataId);
    checkLayout();
    if (self)
        showPointed();
    return self;
}

void BaseTabelScene::lookAt(int dataId, int itemId)
{
    const bool drewBefore = GetDrawStatus();
    if (!makeCurrent(dataId) || !isBound())
        return;
    const DrawItem* const shown =
        itemId > 0 ? getDrawScene()->findItem(itemId) : getDrawScene()->selectedItem(dataId);
    if (shown && !shown->isFinished())
        getDrawScene()->setSelected(0, dataId);
    else if (shown && !shown->isSelected())
        selectFigure(itemId, dataId);
    SetDrawStatus(drewBefore);
    emit sgnLookChanged();
}

void BaseTabelScene::selectFigure(int itemId, int dataId)
{
    if (DrawItemButton* child = widgets().childDrawItems->findButton(itemId))
        widgets().childDrawItems->setCurrentButton(child, false);
    if (itemId == 0)
        getDrawScene()->selectNothing(dataId);
    else
        getDrawScene()->setSelected(itemId, dataId);
}

void BaseTabelScene::showFault(const CheckFault& fault)
{
    perform([this, fault] {
        const QPointer<BaseTabelScene> self(this);
        m_nothingFollows = true;
        pickFault(fault);
        if (!self)
            return;
        m_nothingFollows = false;
        if (isBound())
            startMissing(fault);
    });
}

void BaseTabelScene::pickFault(const CheckFault& fault)
{
    const QPointer<BaseTabelScene> self(this);
    if (m_data->getDataInfo(fault.dataId) && m_data->getSelectedDataId() != fault.dataId) {
        nameEntry(fault.dataId);
        showEntry(fault.dataId);
    }
    const DrawItem* const figure =
        self && isBound() ? getDrawScene()->findItem(fault.itemId) : nullptr;
    if (!figure || figure->isSelected())
        return;
    selectFigure(fault.itemId, fault.dataId);
    if (self && isBound())
        getDrawScene()->resumeDrawing();
}

/// Children are left to the buttons that add them.
void BaseTabelScene::startMissing(const CheckFault& fault)
{
    const RuleProtocolItem* const item = m_data->getTemplate()->findItem(fault.key);
    const RuleDataInfo* const entry = m_data->getDataInfo(fault.dataId);
    if (!item || !item->isFigure() || !entry || fault.itemId > 0 || !mayFollow() ||
        getDrawScene()->isDrawing() ||
        widgets().childFucBar->drawTypes().contains(item->drawType()))
        return;
    startFigure(*item, *entry);
}

void BaseTabelScene::markFault(const CheckFault* fault)
{
    if (!isBound())
        return;
    FaultMarks::show(widgets(), fault, m_data->getSelectedDataId());
    getDrawScene()->setFaulty(fault ? fault->itemId : 0);
}

void BaseTabelScene::emphasise(const DrawItem* item)
{
    DrawItemButton* button = item ? widgets().childDrawItems->findButton(item->itemId()) : nullptr;
    if (item && !button)
        button = widgets().drawItems->findDataButton(item->dataId());
    if (m_emphasised == button)
        return;
    if (m_emphasised)
        m_emphasised->setEmphasised(false);
    m_emphasised = button;
    if (button)
        button->setEmphasised(true);
}

void BaseTabelScene::showPointed()
{
    if (!isBound())
        return;
    const DrawItemButton* const child = widgets().childDrawItems->pointedButton();
    const DrawItemButton* const button = child ? child : widgets().drawItems->pointedButton();
    if (getDrawScene()->emphasise(button ? button->dataId() : 0, child ? child->id() : 0))
        emit sgnLookChanged();
}

QWidget* BaseTabelScene::placeOf(const CheckFault& fault) const
{
    return isBound() ? FaultMarks::placeOf(fault, widgets(), *m_data->getTemplate()) : nullptr;
}

void BaseTabelScene::loadEntry()
{
    const RuleDataInfo* entry = m_data->selectedDataInfo();
    EntryRows::load(*widgets().controls, *m_data, entry);
    loadFixedRows(entry);
}

void BaseTabelScene::loadFixedRows(const RuleDataInfo* entry)
{
    if (entry)
        m_direction.load(*m_data, *entry);
}

int BaseTabelScene::pickedFigure(int dataId) const
{
    const DrawItemButton* button = widgets().drawItems->findDataButton(dataId);
    return button ? button->id() : 0;
}

std::unique_ptr<DrawItem> BaseTabelScene::createDrawItem(BaseDrawType type,
                                                         const RuleDataInfo* entry,
                                                         DrawItemForbidenAreaType forbidden) const
{
    if (!isBound() || !entry)
        return nullptr;
    const RuleProtocolItem* item = m_data->getTemplate()->figureItem(type);
    return item ? makeFigure(*item, *entry, forbidden) : nullptr;
}

std::unique_ptr<DrawItem> BaseTabelScene::makeFigure(const RuleProtocolItem& item,
                                                     const RuleDataInfo& entry,
                                                     DrawItemForbidenAreaType forbidden) const
{
    auto figure = FigureMaker::make(*m_data->getTemplate(), item, entry, forbidden);
    if (figure)
        LineDirections::giveTo(*figure, entry);
    return figure;
}

DrawItemButton* BaseTabelScene::createChildDrawItemButton(const QString& label,
                                                          const DrawItem* item)
{
    return EntryButtons::addChild(*widgets().childDrawItems, label, item);
}

void BaseTabelScene::sltTabelRuleFucBtnClicked(int type)
{
    SetDrawStatus(true);
    perform([this, pressed = static_cast<BaseDrawType>(type)] {
        if (canAddEntry(pressed))
            addEntry(pressed);
    });
}

void BaseTabelScene::perform(const std::function<void()>& action)
{
    const QPointer<BaseTabelScene> self(this);
    finishEdits();
    if (self && becomeSelected() && isBound())
        action();
    if (!self)
        return;
    checkLayout();
    showPointed();
    emit sgnRepaintCanvas();
}

bool BaseTabelScene::canAddEntry(BaseDrawType) const
{
    return m_data->getDataCount() < m_data->getTemplate()->countRange().max;
}

void BaseTabelScene::addEntry(BaseDrawType pressed)
{
    auto created = m_data->newDataInfo();
    if (!created)
        return;
    prepareNewEntry(*created);
    const RuleDataInfo& entry = *m_data->addDataInfo(std::move(created));
    m_data->setSelectedDataId(entry.id());
    const RuleProtocolItem* item = firstFigureItem(pressed);
    const DrawItem* figure = item ? addFigure(*item, entry) : nullptr;
    refreshTabelDrawItem();
    refreshChildTabelDrawItem();
    loadEntry();
    getDrawScene()->setSelected(figure ? figure->itemId() : 0, entry.id());
}

RuleProtocolItem* BaseTabelScene::entryFigureItem() const
{
    return sceneProtocol(m_data->getSceneType()).entryFigureItem(*m_data->getTemplate());
}

RuleProtocolItem* BaseTabelScene::firstFigureItem(BaseDrawType pressed) const
{
    return m_data->getTemplate()->figureItem(pressed);
}

DrawItem* BaseTabelScene::addFigure(const RuleProtocolItem& item, const RuleDataInfo& entry,
                                    int parentId)
{
    const auto forbidden = parentId < 0 ? m_data->getTemplate()->forbiddenArea(item)
                                        : DrawItemForbidenAreaType::ForbidenOutsideParent;
    auto figure = makeFigure(item, entry, forbidden);
    if (!figure)
        return nullptr;
    m_direction.giveTo(*figure);
    return getDrawScene()->addItem(std::move(figure), parentId);
}

void BaseTabelScene::startFigure(const RuleProtocolItem& item, const RuleDataInfo& entry)
{
    const DrawItem* figure = addFigure(item, entry);
    if (!figure)
        return;
    const DrawItemButton* button = widgets().drawItems->findDataButton(entry.id());
    if (!button || button->id() == 0)
        refreshTabelDrawItem();
    getDrawScene()->setSelected(figure->itemId(), entry.id());
}

void BaseTabelScene::sltTabelChildRuleFucBtnClicked(int type)
{
    const QString itemKey = std::exchange(m_pressedItem, QString());
    SetDrawStatus(true);
    perform([this, type, itemKey] { addChildFigure(static_cast<BaseDrawType>(type), itemKey); });
}

void BaseTabelScene::pressChildFuc(int type, const QString& itemKey)
{
    m_pressedItem = itemKey;
    sltTabelChildRuleFucBtnClicked(type);
}

void BaseTabelScene::addChildFigure(BaseDrawType type, const QString& itemKey)
{
    const DrawItemButton* parent = widgets().drawItems->currentButton();
    const RuleDataInfo* entry = parent ? m_data->getDataInfo(parent->dataId()) : nullptr;
    if (!entry)
        return;
    const DataTemplate& dataTemplate = *m_data->getTemplate();
    const RuleProtocolItem* item =
        itemKey.isEmpty() ? dataTemplate.figureItem(type) : dataTemplate.findItem(itemKey);
    if (!item || !SceneFigures::mayHaveMore(*m_data, *item, entry->id()))
        return;
    const DrawItem* figure = addFigure(*item, *entry, parent->id());
    if (!figure)
        return;
    const int itemId = figure->itemId();
    refreshChildTabelDrawItem();
    selectFigure(itemId, entry->id());
}

void BaseTabelScene::sltTabelDrawItemCheckBtnChanged()
{
    perform([this] {
        if (const DrawItemButton* button = widgets().drawItems->currentButton())
            showEntry(button->dataId());
    });
}

void BaseTabelScene::sltTabelChildDrawItemCheckBtnChanged()
{
    perform([this] {
        if (const DrawItemButton* button = widgets().childDrawItems->currentButton())
            getDrawScene()->setSelected(button->id(), button->dataId());
    });
}

void BaseTabelScene::sltDeleteDrawItem()
{
    perform([this] {
        deleteCurrent();
        // The button that was pressed goes with the last entry.
        if (widgets().drawItems->isEmpty())
            takeFocusFrom(*widgets().actions);
    });
}

void BaseTabelScene::deleteCurrent()
{
    const QScopedValueRollback<bool> guard(m_nothingFollows, true);
    const DrawItemButton* child = widgets().childDrawItems->currentButton();
    const DrawItemButton* button = widgets().drawItems->currentButton();
    if (child)
        deleteChild(child->id());
    else if (button)
        deleteEntry(button->dataId());
}

void BaseTabelScene::deleteChild(int itemId)
{
    getDrawScene()->removeItem(itemId);
    refreshTabelDrawItem();
    refreshChildTabelDrawItem();
    const int dataId = m_data->getSelectedDataId();
    getDrawScene()->setSelected(pickedFigure(dataId), dataId);
}

void BaseTabelScene::deleteEntry(int dataId)
{
    const int position = m_data->indexOf(dataId);
    SceneFigures::remove(*m_data, SceneFigures::idsOf(*m_data, dataId));
    m_data->removeDataInfo(dataId);
    const int next = qMin(position, m_data->getDataCount() - 1);
    const int nextId = next < 0 ? 0 : m_data->getAllData()[static_cast<std::size_t>(next)]->id();
    m_data->setSelectedDataId(nextId);
    refreshTabelDrawItem();
    showEntry(nextId);
}

void BaseTabelScene::sltRedrawItem()
{
    SetDrawStatus(true);
    perform([this] { redrawCurrent(); });
}

void BaseTabelScene::redrawCurrent()
{
    const DrawItemButton* child = widgets().childDrawItems->currentButton();
    const DrawItemButton* button = widgets().drawItems->currentButton();
    const DrawItemButton* current = child ? child : button;
    const RuleDataInfo* entry = current ? m_data->getDataInfo(current->dataId()) : nullptr;
    if (!entry)
        return;
    const DrawItem* figure = getDrawScene()->findItem(current->id());
    if (figure) {
        redrawFigure(*figure);
    } else if (const RuleProtocolItem* missing = missingFigureItem(entry->id())) {
        startFigure(*missing, *entry);
    }
}

void BaseTabelScene::redrawFigure(const DrawItem& figure)
{
    const QScopedValueRollback<bool> guard(m_nothingFollows, true);
    const int itemId = figure.itemId();
    const int dataId = figure.dataId();
    const QList<int> dropped = dropsOnRedraw(figure);
    SceneFigures::remove(*m_data, dropped);
    if (!dropped.isEmpty())
        refreshChildTabelDrawItem();
    getDrawScene()->redrawItem(itemId);
    getDrawScene()->setSelected(itemId, dataId);
}

QList<int> BaseTabelScene::dropsOnRedraw(const DrawItem& figure) const
{
    return SceneFigures::childIdsOf(figure);
}

RuleProtocolItem* BaseTabelScene::missingFigureItem(int dataId) const
{
    return SceneFigures::firstMissing(*m_data, {entryFigureItem()}, dataId);
}

void BaseTabelScene::sltDrawItemSelected()
{
    SetDrawStatus(true);
    if (!isBound())
        return;
    const DrawItem* item = getDrawScene()->selectedItem(m_data->getSelectedDataId());
    setPartsEnabled(!item || item->isFinished());
}

bool BaseTabelScene::mayFollow() const
{
    return !m_nothingFollows && !getSelectMode() && m_uiEditable;
}

void BaseTabelScene::setPartsEnabled(bool enabled)
{
    const QList<WidgetTabel*> parts{widgets().ruleFucBar, widgets().drawItems,
                                    widgets().childFucBar, widgets().childDrawItems};
    for (WidgetTabel* part : parts) {
        if (!enabled && !takeFocusFrom(*part))
            return;
        part->setControlEnable(enabled);
    }
}

void BaseTabelScene::sltRuleEnableChanged(int dataId, bool on)
{
    RuleDataInfo* entry = m_data ? m_data->getDataInfo(dataId) : nullptr;
    if (entry)
        entry->setEnabled(on);
    if (!becomeSelected())
        return;
    emit sgnRowEdited(QString::fromLatin1(RowContract::kEnable));
    emit sgnRepaintCanvas();
}

void BaseTabelScene::refreshTabelDrawItem()
{
    if (!isBound()) {
        widgets().drawItems->deleteAll();
        return;
    }
    const bool hasCheckBoxes = m_data->getSceneType() == SceneType::Rules && getSelectMode();
    FigureLabels::update(*m_data, entryFigureItem());
    EntryButtons::fillEntries(*widgets().drawItems, *m_data, entryFigureItem(), hasCheckBoxes);
    orderFocus();
}

void BaseTabelScene::refreshChildTabelDrawItem()
{
    const DrawItemButton* button = widgets().drawItems->currentButton();
    if (!isBound() || !button) {
        widgets().childDrawItems->deleteAll();
        return;
    }
    QList<RuleProtocolItem*> items;
    for (RuleProtocolItem* item : m_data->getTemplate()->figureItems()) {
        if (!widgets().childFucBar->drawTypes().contains(item->drawType()))
            continue;
        FigureLabels::number(*m_data, button->dataId(), *item);
        items.append(item);
    }
    EntryButtons::fillChildren(*widgets().childDrawItems, *m_data, button->dataId(), items);
    if (!widgets().childDrawItems->isEmpty())
        orderFocus();
}

void BaseTabelScene::sltTabelAttrControlValueChange(const QString& key)
{
    tabelAttrControlValueChange(key);
    checkLayout();
    if (!becomeSelected())
        return;
    emit sgnRowEdited(key);
    emit sgnRepaintCanvas();
}

void BaseTabelScene::tabelAttrControlValueChange(const QString& key)
{
    RuleDataInfo* entry = isBound() ? m_data->selectedDataInfo() : nullptr;
    if (!entry)
        return;
    const DataTemplate& dataTemplate = *m_data->getTemplate();
    ControlItemWidgetTabel& rows = *widgets().controls;
    if (dataTemplate.findItem(key)) {
        EntryRows::store(rows, key, *entry);
        EntryRows::updateDependents(rows, dataTemplate, key, *entry);
        EntryRows::showApplicable(rows, dataTemplate, *entry);
    }
    if (key == LineDirections::key())
        LineDirections::apply(*m_data, *entry);
    else if (key == StatisticsDirection::key())
        m_direction.apply(*m_data, *entry);
}

bool BaseTabelScene::hasCurrentEntry() const
{
    return m_data && m_data->selectedDataInfo();
}

QString BaseTabelScene::hintText() const
{
    const bool mayDraw = isBound() && m_uiEditable && !getSelectMode();
    return mayDraw ? DrawingHint::of(*getDrawScene()) : QString();
}

QString BaseTabelScene::actedOn() const
{
    const DrawItemButton* const child = widgets().childDrawItems->currentButton();
    const DrawItemButton* const button = child ? child : widgets().drawItems->currentButton();
    return button ? button->fullText() : QString();
}
