#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>

class BaseTabelScene;

namespace IntelligentRulesUI
{

/**
 * Emphasises in a section the button of the figure that is under the pointer on the picture, until
 * the pointer is elsewhere. Selects nothing, and does nothing while a figure is drawn.
 */
class FigureHover : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The section whose canvas is seen; not owned, null for none.
    void setPanel(BaseTabelScene* panel);
    /// The pointer is at @p at, in canvas pixels.
    void pointAt(const QPoint& at);
    void leave();
    /// Whether an event of the surface tells that the pointer is not over @p picture, in pixels of
    /// the surface: it delivers no moves there.
    static bool isLeaving(const QEvent& event, const QRect& picture);

private:
    QPointer<BaseTabelScene> m_panel;
};

} // namespace IntelligentRulesUI
