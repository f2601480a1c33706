#include "scene/lanesscene.h"

#include "Protocol/configmember.h"
#include "Protocol/entryname.h"
#include "Protocol/lanes/lanenumbers.h"
#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawscene.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/drawfucbutton.h"
#include "tabel/inputboxtabel.h"
#include "tabel/radiobuttontabel.h"
#include "tabel/rulewidgettabel.h"

LanesScene::LanesScene(QWidget* parent) : BaseTabelScene(parent)
{
    addFucButton(widgets().ruleFucBar, BaseDrawType::VehicleLane, tr("Lane"));
    checkLayout();
}

LanesTemplate* LanesScene::lanesTemplate() const
{
    return isBound() ? LanesTemplate::of(*ruleData()) : nullptr;
}

void LanesScene::setRuleData(RuleData* newData)
{
    widgets().childFucBar->deleteAll();
    BaseTabelScene::setRuleData(newData);
}

void LanesScene::bindFixedRows()
{
    const LanesTemplate* lanes = lanesTemplate();
    if (!lanes)
        return;
    const CountRange count = lanes->countRange();
    lanes->numberItem()->setRange(count.min, count.max);
    auto* numberRow = new InputBoxTabel(widgets().controls);
    addFixedRow(numberRow, lanes->numberItem(), tr("Lane number"));
    addFixedRow(new RadioButtonTabel(widgets().controls), lanes->leftLineTypeItem(),
                tr("Left lane line"));
    addFixedRow(new RadioButtonTabel(widgets().controls), lanes->rightLineTypeItem(),
                tr("Right lane line"));
    // One row edits both: a rule's lane is the one that it is edited with.
    if (RuleProtocolItem* item = lanes->ruleLaneNumberItem())
        item->setRow(numberRow);
    addRuleButtons();
}

void LanesScene::addRuleButtons()
{
    RuleWidgetTabel* bar = widgets().childFucBar;
    for (const auto& item : lanesTemplate()->items()) {
        if (item->templateName() != ConfigMember::kRuleSection || !item->isFigure())
            continue;
        DrawFucButton* button = addFucButton(bar, item->drawType(), item->caption());
        if (lanesTemplate()->figureItem(item->drawType()) != item.get())
            button->setItemKey(item->key());
    }
}

bool LanesScene::canAddEntry(BaseDrawType pressed) const
{
    return getDrawScene()->itemCount(pressed, 0) < ruleData()->getTemplate()->countRange().max;
}

void LanesScene::prepareNewEntry(RuleDataInfo& entry)
{
    LaneNumbers::giveFree(*ruleData(), entry);
    const LanesTemplate* const dataTemplate = lanesTemplate();
    if (dataTemplate && dataTemplate->hasRuleItems()) {
        const RuleData& lanes = *ruleData();
        entry.setName(EntryName::unused(lanes, EntryName::written(lanes, lanes.getDataCount())));
    }
}

void LanesScene::tabelAttrControlValueChange(const QString& key)
{
    BaseTabelScene::tabelAttrControlValueChange(key);
    RuleDataInfo* entry = isBound() ? ruleData()->selectedDataInfo() : nullptr;
    if (key != LanesTemplate::kNumber || !entry || !entry->hasValue(LanesTemplate::kRuleLaneNumber))
        return;
    entry->setValue(LanesTemplate::kRuleLaneNumber, entry->value(LanesTemplate::kNumber));
    BaseTabelScene::tabelAttrControlValueChange(LanesTemplate::kRuleLaneNumber);
}
