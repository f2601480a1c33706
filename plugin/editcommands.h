#pragma once

#include "draw/crosshair.h"
#include "plugin/correcting.h"
#include "plugin/edithistory.h"
#include "plugin/editkeys.h"

#include <QObject>
#include <QString>
#include <utility>

class DrawScene;

namespace IntelligentRulesUI
{

/**
 * What an operator does with keys on the picture, and with the buttons beside Save: take back,
 * finish and leave, correct, draw at the cross-hair. It acts on the section that is selected, and
 * knows which keys have something to do.
 */
class EditCommands : public QObject
{
    Q_OBJECT

public:
    explicit EditCommands(QObject* parent = nullptr);

    EditHistory& history() { return m_history; }
    Correcting& correcting() { return m_correcting; }
    CrossHair& crossHair() { return m_crossHair; }
    /// The section whose canvas is seen; not owned, null for none. With @p mayDraw its figures can
    /// be drawn and corrected.
    void setPanel(BaseTabelScene* panel, bool mayDraw);
    /// What the last key did is one step with what a key of the same series did before; empty for
    /// none.
    QString takeSeries() { return std::exchange(m_series, QString()); }
    /// Paints handles and cross-hair over the figures.
    void draw(Gdiplus::Graphics* graphics) const;

    /// Whether the client must not get the key now.
    bool claims(EditKey key) const;
    /// Whether the key would change something now.
    bool isUseful(EditKey key) const;
    /// Whether the picture, when it has the focus, takes the key though nothing is in hand.
    static bool isForPicture(EditKey key);
    /// Whether the key works on the figure being drawn.
    static bool draws(EditKey key);
    /// Whether it does so again and again while it is held.
    static bool repeats(EditKey key);
    /// Does what the key is for.
    void use(EditKey key);

signals:
    /// A key presses or moves as the mouse would, in canvas pixels.
    void sgnPressed(Qt::MouseButton button, const QPoint& at);
    void sgnMoved(const QPoint& at);

private:
    bool isDrawing() const;
    int pointsInHand() const;
    DrawScene* canvas() const;
    QPoint aim() const;
    void leave();
    void finish();
    void press();
    void move(const QPoint& way);

    EditHistory m_history;
    Correcting m_correcting;
    CrossHair m_crossHair;
    BaseTabelScene* m_panel = nullptr;
    QString m_series;
    bool m_mayDraw = false;
};

} // namespace IntelligentRulesUI
