#include "plugin/editcommands.h"

#include "Protocol/ruledata.h"
#include "draw/drawscene.h"
#include "scene/basetabelscene.h"

namespace IntelligentRulesUI
{

bool EditCommands::isDrawing() const
{
    return m_panel && m_panel->getDrawScene() && m_panel->getDrawScene()->isDrawing();
}

int EditCommands::pointsInHand() const
{
    if (!isDrawing())
        return 0;
    const DrawScene& canvas = *m_panel->getDrawScene();
    return canvas.selectedItem(canvas.currentDataId())->value().pointCount();
}

bool EditCommands::claims(EditKey key) const
{
    switch (key) {
    case EditKey::None:
        return false;
    case EditKey::Undo:
    case EditKey::Redo:
    case EditKey::Help:
        return isUseful(key);
    default:
        return isDrawing();
    }
}

bool EditCommands::isUseful(EditKey key) const
{
    switch (key) {
    case EditKey::Undo:
        return m_history.stack().canUndo();
    case EditKey::Redo:
        return m_history.stack().canRedo();
    case EditKey::Help:
        return m_panel;
    case EditKey::Idle:
        return m_history.mayMerge();
    case EditKey::TakeBack:
        return pointsInHand() > 0;
    case EditKey::Finish:
    case EditKey::Leave:
        return isDrawing();
    default:
        return false;
    }
}

void EditCommands::use(EditKey key)
{
    if (!isUseful(key))
        return;
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
        m_panel->getDrawScene()->takeBackPoint();
        break;
    case EditKey::Finish:
        m_panel->getDrawScene()->addDrawPoint(DrawScene::DrawMouseRightPress, {});
        break;
    case EditKey::Leave:
        if (!m_panel->getDrawScene()->takeBackPoints())
            m_history.leaveDrawing(*m_panel);
        break;
    default:
        break;
    }
}

} // namespace IntelligentRulesUI
