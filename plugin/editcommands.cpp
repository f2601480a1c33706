#include "plugin/editcommands.h"

#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "draw/drawscene.h"
#include "scene/basetabelscene.h"

#include <QPointer>

namespace IntelligentRulesUI
{

EditCommands::EditCommands(QObject* parent) : QObject(parent), m_history(this), m_correcting(this)
{
}

void EditCommands::setPanel(BaseTabelScene* panel, bool mayDraw)
{
    m_panel = panel;
    m_mayDraw = panel && mayDraw;
    m_history.endMerging();
    m_correcting.setPanel(m_mayDraw ? panel : nullptr);
    m_crossHair.reset();
    m_entry = currentEntry();
}

void EditCommands::followEntry()
{
    const int before = std::exchange(m_entry, currentEntry());
    if (before != m_entry)
        m_crossHair.hide();
}

DrawScene* EditCommands::canvas() const
{
    return m_panel ? m_panel->getDrawScene() : nullptr;
}

bool EditCommands::isDrawing() const
{
    return canvas() && canvas()->isDrawing();
}

QPoint EditCommands::aim() const
{
    return m_crossHair.position(canvas()->canvasSize());
}

int EditCommands::pointsInHand() const
{
    if (!isDrawing())
        return 0;
    return canvas()->selectedItem(canvas()->currentDataId())->value().pointCount();
}

bool EditCommands::claims(EditKey key) const
{
    switch (key) {
    case EditKey::None:
    case EditKey::Idle:
        return false;
    case EditKey::Undo:
    case EditKey::Redo:
    case EditKey::Help:
    case EditKey::Copy:
    case EditKey::Paste:
    case EditKey::Duplicate:
        return isUseful(key);
    default:
        return isDrawing() || m_correcting.figures().hasChosen() || m_crossHair.isShown();
    }
}

bool EditCommands::isUseful(EditKey key) const
{
    const bool hasAim = m_crossHair.isShown();
    const bool hasChosen = m_correcting.figures().hasChosen();
    switch (key) {
    case EditKey::None:
        return false;
    case EditKey::Undo:
        return m_history.stack().canUndo() || m_correcting.isMovedByKeys();
    case EditKey::Redo:
        return m_history.stack().canRedo();
    case EditKey::Help:
        return m_panel;
    case EditKey::Copy:
        return m_panel && m_transfer.whyNotCopied(*m_panel, currentEntry()).isEmpty();
    case EditKey::Paste:
        return m_panel && m_transfer.whyNotPasted(*m_panel).isEmpty();
    case EditKey::Duplicate:
        return m_panel && m_transfer.whyNotDuplicated(*m_panel, currentEntry()).isEmpty();
    case EditKey::Idle:
        return m_history.mayMerge();
    case EditKey::TakeBack:
        return pointsInHand() > 0;
    case EditKey::Press:
        return hasAim;
    case EditKey::Remove:
        return hasChosen;
    case EditKey::Finish:
        return isDrawing() || hasAim;
    case EditKey::Leave:
        return isDrawing() || hasAim || hasChosen;
    default:
        return m_mayDraw && !canvas()->canvasSize().isEmpty();
    }
}

QString EditCommands::whyUseless(EditKey key) const
{
    if (!m_panel || isUseful(key))
        return {};
    if (key == EditKey::Paste && EntryTransfer::hasCopied())
        return m_transfer.whyNotPasted(*m_panel);
    return key == EditKey::Duplicate ? m_transfer.whyNotDuplicated(*m_panel, currentEntry())
                                     : QString();
}

bool EditCommands::isForPicture(EditKey key)
{
    return key == EditKey::Idle || !editKeyWay(key).isNull();
}

/// What takes the figures as they are ends a move by keys first.
bool EditCommands::actsOnWhole(EditKey key)
{
    return key == EditKey::Undo || key == EditKey::Redo || key == EditKey::Copy ||
           key == EditKey::Paste || key == EditKey::Duplicate;
}

bool EditCommands::draws(EditKey key)
{
    return key == EditKey::TakeBack || key == EditKey::Finish || key == EditKey::Leave;
}

bool EditCommands::repeats(EditKey key)
{
    return key != EditKey::Press && key != EditKey::Finish && key != EditKey::Leave &&
           key != EditKey::Remove;
}

QString EditCommands::use(EditKey key)
{
    if (!isUseful(key))
        return {};
    if (actsOnWhole(key)) {
        const QPointer<EditCommands> self(this);
        m_correcting.end();
        if (!self)
            return {};
    }
    switch (key) {
    case EditKey::Undo:
        m_history.undo();
        break;
    case EditKey::Redo:
        m_history.redo();
        break;
    case EditKey::Idle:
        m_history.endMerging();
        break;
    case EditKey::TakeBack:
        canvas()->takeBackPoint();
        break;
    case EditKey::Finish:
        finish();
        break;
    case EditKey::Leave:
        leave();
        break;
    case EditKey::Press:
        press();
        break;
    case EditKey::Remove:
        m_correcting.figures().removeChosen();
        break;
    case EditKey::Copy:
        return copy(currentEntry());
    case EditKey::Paste:
        return paste();
    case EditKey::Duplicate:
        return duplicate(currentEntry());
    default:
        move(editKeyWay(key));
        break;
    }
    return {};
}

int EditCommands::currentEntry() const
{
    return m_panel && m_panel->ruleData() ? m_panel->ruleData()->getSelectedDataId() : 0;
}

QString EditCommands::copy(int dataId) const
{
    const QString why = m_transfer.whyNotCopied(*m_panel, dataId);
    return why.isEmpty() ? m_transfer.copy(*m_panel, dataId) : why;
}

QString EditCommands::paste()
{
    return showAdded(m_transfer.paste(*m_panel), tr("Paste %1"));
}

QString EditCommands::duplicate(int dataId)
{
    const QString why = m_transfer.whyNotDuplicated(*m_panel, dataId);
    return why.isEmpty() ? showAdded(m_transfer.duplicate(*m_panel, dataId), tr("Duplicate %1"))
                         : why;
}

QString EditCommands::showAdded(int dataId, const QString& title)
{
    if (dataId == 0)
        return tr("Nothing was added: there would be too much to be edited.");
    const QPointer<EditCommands> self(this);
    BaseTabelScene& panel = *m_panel;
    if (!panel.makeCurrent(dataId) || !self || m_panel != &panel)
        return {};
    const RuleData& data = *panel.ruleData();
    m_history.note({}, {}, title.arg(EntryName::button(data, data.indexOf(dataId))));
    return {};
}

void EditCommands::finish()
{
    if (m_correcting.isMovedByKeys())
        m_correcting.end();
    else if (m_crossHair.isShown())
        emit sgnPressed(Qt::RightButton, aim());
    else
        canvas()->addDrawPoint(DrawScene::DrawMouseRightPress, {});
}

/// One thing after the other.
void EditCommands::leave()
{
    if (m_correcting.isMovedByKeys())
        m_correcting.putBack();
    else if (m_correcting.figures().hasChosen())
        m_correcting.figures().chooseNothing();
    else if (!isDrawing())
        m_crossHair.hide();
    else if (!canvas()->takeBackPoints())
        m_history.leaveDrawing(*m_panel);
}

void EditCommands::press()
{
    if (m_correcting.isMovedByKeys() || (!isDrawing() && m_correcting.figures().hasHandle(aim())))
        m_correcting.toggle(aim());
    else
        emit sgnPressed(Qt::LeftButton, aim());
}

void EditCommands::move(const QPoint& way)
{
    FigureCorrector& figures = m_correcting.figures();
    const bool isTaken = m_correcting.isMovedByKeys();
    if (figures.hasChosen() && !isTaken) {
        if (figures.moveChosen(way))
            m_series = figures.chosenName();
        return;
    }
    m_crossHair.moveBy(way, canvas()->canvasSize());
    if (isTaken)
        m_correcting.moveTo(aim());
    else
        emit sgnMoved(aim());
}

void EditCommands::draw(Gdiplus::Graphics* graphics) const
{
    m_correcting.figures().draw(graphics);
    if (graphics && canvas())
        m_crossHair.draw(*graphics, canvas()->canvasSize());
}

} // namespace IntelligentRulesUI
