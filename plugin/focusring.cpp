#include "plugin/focusring.h"

#include "plugin/editkeys.h"
#include "tabel/focus.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPoint>

#include <utility>

namespace IntelligentRulesUI
{

namespace
{

constexpr int kWidth = 2; // of the frame, and of the line inside it that tells it from a picture
constexpr QRgb kDark = 0xFF101418;
constexpr int kMiddle = 128;

bool isByKeys(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

} // namespace

FocusRing::FocusRing(QWidget* control, Place place)
    : QFocusFrame(control->parentWidget()), m_control(control), m_place(place)
{
    setObjectName(QStringLiteral("focusRing"));
    hide();
    control->installEventFilter(this);
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    QFocusFrame::eventFilter(watched, event);
    if (watched == m_control)
        follow(*event);
    return false;
}

void FocusRing::follow(const QEvent& event)
{
    const bool isInside = m_place == Place::Inside;
    switch (event.type()) {
    case QEvent::FocusIn:
        seeFocusIn(static_cast<const QFocusEvent&>(event).reason());
        break;
    case QEvent::FocusOut:
        m_isBackSoon =
            widget() && Focus::isForAWhile(static_cast<const QFocusEvent&>(event).reason());
        setShown(false);
        break;
    case QEvent::KeyPress:
        if (!editKeyWay(editKeyOf(static_cast<const QKeyEvent&>(event))).isNull())
            setShown(true);
        break;
    case QEvent::MouseButtonPress:
        setShown(!isInside && m_control->hasFocus());
        break;
    case QEvent::Move:
    case QEvent::Resize:
        placeInside();
        break;
    default:
        break;
    }
}

void FocusRing::seeFocusIn(Qt::FocusReason reason)
{
    const bool wasShown = std::exchange(m_isBackSoon, false);
    const bool isBack = Focus::isForAWhile(reason);
    setShown(m_place != Place::Inside || (isBack ? wasShown : isByKeys(reason)));
}

void FocusRing::setShown(bool shown)
{
    setWidget(shown ? m_control : nullptr);
    // The base no longer looks at a control that it lets go of.
    m_control->installEventFilter(this);
    placeInside();
}

void FocusRing::placeInside()
{
    if (m_place != Place::Inside || !widget())
        return;
    setGeometry(m_control->geometry());
    constexpr int width = 2 * kWidth;
    setMask(QRegion(rect()).subtracted(rect().adjusted(width, width, -width, -width)));
    raise();
}

void FocusRing::paintEvent(QPaintEvent*)
{
    const QColor colour = palette().color(QPalette::WindowText);
    QPainter painter(this);
    painter.fillRect(rect(), colour);
    if (m_place == Place::Inside)
        painter.fillRect(rect().adjusted(kWidth, kWidth, -kWidth, -kWidth),
                         colour.lightness() < kMiddle ? QColor(Qt::white) : QColor(kDark));
}

} // namespace IntelligentRulesUI
