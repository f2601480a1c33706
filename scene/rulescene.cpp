#include "scene/rulescene.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/figurelabels.h"
#include "Protocol/misfit.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/api/kqmessagebox.h"
#include "scene/scenefigures.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/drawfucbutton.h"
#include "tabel/drawitembutton.h"
#include "tabel/inputboxtabel.h"
#include "tabel/ruleitemwidgettabel.h"

#include <QLineEdit>
#include <QPointer>
#include <QRegularExpressionValidator>

#include <algorithm>

namespace
{

/// Names start with a letter or digit and go on with letters, digits, "#", "-" or "_". Letters
/// are the ASCII ones and, punctuation and symbols aside, everything from U+04BB on: devices in
/// the field hold names from all over that range.
QString namePattern()
{
    const QString letter = QStringLiteral("(?![\\p{P}\\p{S}])[a-zA-Z0-9\\x{04BB}-\\x{FFFD}]");
    return QStringLiteral("^%1(%1|[#]|[-]|[_])+$").arg(letter);
}

} // namespace

RuleScene::RuleScene(QWidget* parent) : BaseTabelScene(parent)
{
    DrawFucButton* button = addFucButton(widgets().ruleFucBar, BaseDrawType::None, tr("Add rule"));
    button->setObjectName(QStringLiteral("addRule"));
    checkLayout();
}

QString RuleScene::heading() const
{
    return tr("Rule configuration");
}

void RuleScene::bindFixedRows()
{
    m_nameRow = new InputBoxTabel(widgets().controls);
    m_nameRow->setObjectName(QString::fromLatin1(EntryName::kRow));
    m_nameRow->setTitle(tr("Rule name"));
    m_nameRow->setValidator(
        new QRegularExpressionValidator(QRegularExpression(namePattern()), m_nameRow));
    m_nameRow->setMaxLength(EntryName::kMaxLength);
    connect(m_nameRow, &ControlTabel::sgnControlValueChange, this, &RuleScene::sltRuleNameChanged);
    widgets().controls->addControl(m_nameRow, false);
}

void RuleScene::loadFixedRows(const RuleDataInfo* entry)
{
    BaseTabelScene::loadFixedRows(entry);
    if (!entry)
        return;
    m_nameRow->loadValue(EntryName::button(*ruleData(), ruleData()->indexOf(entry->id())));
    m_nameRow->setMark(Misfit::explainedName(*entry));
}

void RuleScene::sltRuleNameChanged(const QString&)
{
    RuleDataInfo* entry = isBound() ? ruleData()->selectedDataInfo() : nullptr;
    if (!entry || !m_nameRow || !m_nameRow->isModified())
        return;
    const QString name = m_nameRow->value().toString();
    if (name.isEmpty())
        return;
    entry->setName(name);
    m_nameRow->setMark({});
    if (DrawItemButton* button = widgets().drawItems->findDataButton(entry->id()))
        button->setText(name);
    FigureLabels::update(*ruleData(), entryFigureItem(), ruleData()->indexOf(entry->id()));
    getDrawScene()->refreshMessage();
    emit sgnRowEdited(m_nameRow->objectName());
    emit sgnRepaintCanvas();
}

void RuleScene::startRenaming()
{
    auto* const edit = m_nameRow ? m_nameRow->findChild<QLineEdit*>() : nullptr;
    if (!edit)
        return;
    edit->setFocus(Qt::ShortcutFocusReason);
    edit->selectAll();
}

RuleProtocolItem* RuleScene::firstFigureItem(BaseDrawType) const
{
    return entryFigureItem();
}

void RuleScene::prepareNewEntry(RuleDataInfo& entry)
{
    const RuleData& rules = *ruleData();
    entry.setName(EntryName::unused(rules, EntryName::button(rules, rules.getDataCount())));
}

int RuleScene::pickedFigure(int dataId) const
{
    const QList<DrawItem*> figures = getDrawScene()->getItemListByDataId(dataId);
    return figures.isEmpty() ? 0 : figures.last()->itemId();
}

QList<int> RuleScene::dropsOnRedraw(const DrawItem& figure) const
{
    QList<int> others = SceneFigures::idsOf(*ruleData(), figure.dataId());
    others.removeAll(figure.itemId());
    return others;
}

RuleProtocolItem* RuleScene::missingFigureItem(int dataId) const
{
    return SceneFigures::firstMissing(*ruleData(), ruleData()->getTemplate()->figureItems(),
                                      dataId);
}

void RuleScene::sltTabelDrawItemCheckBtnChanged()
{
    const QPointer<RuleScene> self(this);
    finishEdits();
    if (!self)
        return;
    const DrawItemButton* button = widgets().drawItems->currentButton();
    if (isBound() && button)
        nameEntry(button->dataId());
    BaseTabelScene::sltTabelDrawItemCheckBtnChanged();
}

void RuleScene::nameEntry(int dataId)
{
    if (RuleDataInfo* const entry = ruleData()->getDataInfo(dataId))
        EntryName::nameEntry(*ruleData(), *entry);
}

void RuleScene::sltDeleteDrawItem()
{
    finishEdits();
    if (isBound() && ruleData()->getDataCount() < 2) {
        KQGUI::KQMessageBox::ShowNotice(this, tr("Notice"), tr("At least one Rule!"));
        return;
    }
    BaseTabelScene::sltDeleteDrawItem();
}

void RuleScene::sltDrawItemSelected()
{
    if (!isBound() || !mayFollow() || !startNextFigure())
        BaseTabelScene::sltDrawItemSelected();
}

RuleProtocolItem* RuleScene::nextFigureItem(const DrawItem& finished) const
{
    const DataTemplate& rules = *ruleData()->getTemplate();
    const QList<RuleProtocolItem*> items = rules.figureItems();
    const auto drawn = std::find_if(items.begin(), items.end(), [&](const RuleProtocolItem* item) {
        return rules.isFigureFor(finished, *item);
    });
    const int later = static_cast<int>(drawn - items.begin()) + 1;
    return SceneFigures::firstMissing(*ruleData(), items.mid(later), finished.dataId());
}

bool RuleScene::startNextFigure()
{
    const DrawItem* finished = getDrawScene()->selectedItem(ruleData()->getSelectedDataId());
    if (!finished || !finished->isFinished())
        return false;
    const RuleDataInfo* entry = ruleData()->getDataInfo(finished->dataId());
    const RuleProtocolItem* next = entry ? nextFigureItem(*finished) : nullptr;
    if (!next)
        return false;
    SetDrawStatus(true);
    startFigure(*next, *entry);
    return true;
}
