#include "plugin/figurehover.h"

#include "draw/drawscene.h"
#include "draw/figureindex.h"
#include "draw/figureshape.h"
#include "scene/basetabelscene.h"

#include <QMouseEvent>

namespace IntelligentRulesUI
{

void FigureHover::setPanel(BaseTabelScene* panel)
{
    leave();
    m_panel = panel;
}

void FigureHover::pointAt(const QPoint& at)
{
    const DrawScene* const canvas = m_panel ? m_panel->getDrawScene() : nullptr;
    if (!canvas || canvas->isDrawing() || canvas->hasPreview())
        return leave();
    const auto anyFigure = [](const DrawItem&) { return true; };
    m_panel->emphasise(canvas->figuresByPlace().under(at, anyFigure, false));
}

void FigureHover::leave()
{
    if (m_panel)
        m_panel->emphasise(nullptr);
}

bool FigureHover::isLeaving(const QEvent& event, const QRect& picture)
{
    constexpr int reach = FigureShape::kReach;
    const bool isBeside = event.type() == QEvent::MouseMove &&
                          !picture.adjusted(-reach, -reach, reach, reach)
                               .contains(static_cast<const QMouseEvent&>(event).pos());
    return event.type() == QEvent::Leave || isBeside;
}

} // namespace IntelligentRulesUI
