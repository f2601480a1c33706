#pragma once

#include <QFocusFrame>

namespace IntelligentRulesUI
{

/// The frame of a control whose look does not tell that it has the focus. It is painted in the
/// colour that skins give to QFocusFrame, and belongs to the control's parent.
class FocusRing : public QFocusFrame
{
    Q_OBJECT

public:
    enum class Place {
        Around, ///< a control with room around it
        Inside  ///< one without; shown while it is worked on by keys, as it covers its edges
    };

    FocusRing(QWidget* control, Place place);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow(const QEvent& event);
    void seeFocusIn(Qt::FocusReason reason);
    void setShown(bool shown);
    void placeInside();

    QWidget* m_control; ///< not owned
    Place m_place;
    bool m_isBackSoon = false; ///< it was shown when the focus went to a menu or another window
};

} // namespace IntelligentRulesUI
