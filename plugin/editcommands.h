#pragma once

#include "draw/crosshair.h"
#include "plugin/correcting.h"
#include "plugin/edithistory.h"
#include "plugin/editkeys.h"
#include "plugin/entrytransfer.h"

#include <QObject>
#include <QString>
#include <utility>

class DrawScene;

namespace IntelligentRulesUI
{

/**
 * What an operator does with keys on the picture, with the buttons beside Save and in menus: take
 * back, finish and leave, correct, draw at the cross-hair, copy. It acts on the section that is
 * selected, and knows which keys have something to do.
 */
class EditCommands : public QObject
{
    Q_OBJECT

public:
    explicit EditCommands(QObject* parent = nullptr);

    EditHistory& history() { return m_history; }
    Correcting& correcting() { return m_correcting; }
    CrossHair& crossHair() { return m_crossHair; }
    const CrossHair& crossHair() const { return m_crossHair; }
    /// The section whose canvas is seen; not owned, null for none. With @p mayDraw its figures can
    /// be drawn and corrected.
    void setPanel(BaseTabelScene* panel, bool mayDraw);
    BaseTabelScene* panel() const { return m_panel; }
    /// Hides the cross-hair when another entry is current than before.
    void followEntry();
    /// What the last key did is one step with what a key of the same series did before; empty for
    /// none.
    QString takeSeries() { return std::exchange(m_series, QString()); }
    /// Paints handles and cross-hair over the figures.
    void draw(Gdiplus::Graphics* graphics) const;

    /// Whether the client must not get the key now.
    bool claims(EditKey key) const;
    /// Whether the key would change something now.
    bool isUseful(EditKey key) const;
    /// Why a key for entries in the clipboard does nothing now; empty where it would, or where
    /// there is nothing that it could be for.
    QString whyUseless(EditKey key) const;
    /// Whether the picture, when it has the focus, takes the key though nothing is in hand.
    static bool isForPicture(EditKey key);
    /// Whether the key works on the figure being drawn.
    static bool draws(EditKey key);
    /// Whether it does so again and again while it is held.
    static bool repeats(EditKey key);
    /// Does what the key is for. Tells in a sentence when it could not, mostly an empty one.
    QString use(EditKey key);

    EntryTransfer& transfer() { return m_transfer; }
    /// Puts an entry of the section into the clipboard. Tells as use() when it could not.
    QString copy(int dataId) const;
    /// Adds a copy of an entry of the section behind the others, as one step, and makes it
    /// current. Tells as use() when it could not.
    QString duplicate(int dataId);

signals:
    /// A key presses or moves as the mouse would, in canvas pixels.
    void sgnPressed(Qt::MouseButton button, const QPoint& at);
    void sgnMoved(const QPoint& at);

private:
    static bool actsOnWhole(EditKey key);
    bool isDrawing() const;
    int pointsInHand() const;
    DrawScene* canvas() const;
    QPoint aim() const;
    void leave();
    void finish();
    void press();
    void move(const QPoint& way);
    int currentEntry() const;
    QString paste();
    QString showAdded(int dataId, const QString& title);

    EditHistory m_history;
    EntryTransfer m_transfer;
    Correcting m_correcting;
    CrossHair m_crossHair;
    BaseTabelScene* m_panel = nullptr;
    QString m_series;
    int m_entry = 0; ///< the current one
    bool m_mayDraw = false;
};

} // namespace IntelligentRulesUI
