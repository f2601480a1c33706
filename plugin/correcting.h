#pragma once

#include "draw/figurecorrector.h"

#include <QObject>
#include <QPoint>
#include <QTimer>

class BaseTabelScene;

namespace IntelligentRulesUI
{

/**
 * Takes, moves and lets go of figures by what a video surface tells of the mouse, and by keys.
 *
 * A surface tells of presses and moves, but need not tell that a button was let go: whatever else
 * happens ends a move, too. Positions are canvas pixels.
 */
class Correcting : public QObject
{
    Q_OBJECT

public:
    explicit Correcting(QObject* parent = nullptr);

    /// Works on the figures of @p panel from now on; null for none. It is not owned.
    void setPanel(BaseTabelScene* panel);
    FigureCorrector& figures() { return m_figures; }
    const FigureCorrector& figures() const { return m_figures; }

    /// A press of the mouse that drew nothing.
    void press(Qt::MouseButton button, const QPoint& at, Qt::KeyboardModifiers modifiers);
    /// The mouse is at @p at with @p buttons held. Whether the canvas looks different now.
    bool move(const QPoint& at, Qt::MouseButtons buttons);
    /// The surface told of a click: of the press, or of the button let go.
    void click();
    /// Takes or lets go at @p at with a key, so that moveTo() moves.
    void toggle(const QPoint& at);
    bool isMovedByKeys() const { return m_by == By::Keys; }
    bool moveTo(const QPoint& at) { return m_figures.moveTo(m_takenAt, at); }

    /// The mouse has left the surface. Whether the canvas looks different now.
    bool leave() { return m_figures.hover(std::nullopt); }
    /// Lets go of what is moved, where it is. Who hears of it may delete this.
    void end();
    /// The same, for a key that was pressed.
    void endByKey(int key);
    /// Lets go of what is of another entry now, or gone, and forgets it.
    void follow();
    /// Ends a move with everything where it was before.
    void putBack();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// What was moved was let go, and may be elsewhere.
    void sgnEnded();

private:
    enum class By { Nobody, Mouse, Keys };

    void stop();
    void lookAtButtons();

    FigureCorrector m_figures;
    QTimer m_timer; ///< while the mouse moves something
    QPoint m_takenAt;
    By m_by = By::Nobody;
    bool m_isToldOfButtons = false; ///< the application knew of the button when it was pressed
    bool m_isMoved = false;
};

} // namespace IntelligentRulesUI
