#include "plugin/readonlylook.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "host/api/rowcontract.h"
#include "scene/basetabelscene.h"
#include "tabel/drawitembutton.h"
#include "tabel/widgettabelview.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScrollBar>
#include <QWheelEvent>

#include <vector>

namespace IntelligentRulesUI
{

namespace
{

constexpr int kNotch = 120; // of a wheel, as Qt counts

/// The widget that @p at is or lies in, if @p isWanted, below @p top; null for none.
template<class Wanted>
QWidget* around(QWidget* at, const QWidget& top, Wanted isWanted)
{
    while (at && at != &top && !isWanted(*at))
        at = at->parentWidget();
    return at == &top ? nullptr : at;
}

} // namespace

ReadOnlyLook::ReadOnlyLook(QWidget& window, WidgetTabelView& view)
    : QObject(&window), m_window(window), m_view(view)
{
}

void ReadOnlyLook::start(const QList<BaseTabelScene*>& panels)
{
    m_panels = panels;
    if (panels.isEmpty())
        qApp->removeEventFilter(this);
    else
        qApp->installEventFilter(this);
}

/// Buttons keep presses and the wheel to themselves, even those that are disabled.
bool ReadOnlyLook::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const button = qobject_cast<QAbstractButton*>(watched);
    const bool isDead = button && !button->isEnabled() && m_view.isAncestorOf(button);
    if (watched != &m_window && !isDead)
        return QObject::eventFilter(watched, event);
    bool isUsed = false;
    if (event->type() == QEvent::Wheel)
        isUsed = scroll(static_cast<QWheelEvent&>(*event));
    else if (event->type() == QEvent::MouseButtonPress)
        isUsed = press(m_window.mapFromGlobal(static_cast<QMouseEvent&>(*event).globalPos()));
    else if (event->type() == QEvent::KeyPress && !isDead)
        isUsed = useKey(static_cast<QKeyEvent&>(*event));
    if (isUsed)
        event->accept();
    return isUsed || QObject::eventFilter(watched, event);
}

bool ReadOnlyLook::scroll(const QWheelEvent& event)
{
    if (!m_view.rect().contains(m_view.mapFromGlobal(event.globalPosition().toPoint())))
        return false;
    QScrollBar& bar = *m_view.verticalScrollBar();
    const int lines = QApplication::wheelScrollLines() * bar.singleStep();
    const int way = event.pixelDelta().isNull() ? event.angleDelta().y() * lines / kNotch
                                                : event.pixelDelta().y();
    bar.setValue(bar.value() - way);
    return true;
}

bool ReadOnlyLook::press(const QPoint& at)
{
    QWidget* const pressed = m_window.childAt(at);
    if (pressed && m_view.verticalScrollBar() == pressed) {
        const int middle = m_view.mapFrom(&m_window, at).y();
        m_view.verticalScrollBar()->triggerAction(middle < m_view.height() / 2
                                                      ? QAbstractSlider::SliderPageStepSub
                                                      : QAbstractSlider::SliderPageStepAdd);
        return true;
    }
    for (BaseTabelScene* panel : qAsConst(m_panels)) {
        if (pressed && panel->isAncestorOf(pressed))
            return pressIn(*panel, pressed);
    }
    return false;
}

/// Selecting a section is the host's chance to act.
bool ReadOnlyLook::pressIn(BaseTabelScene& panel, QWidget* at)
{
    const auto isTitle = [](const QWidget& widget) {
        return widget.objectName() == QLatin1String(RowContract::kTitleBar);
    };
    const auto isButton = [](const QWidget& widget) {
        return qobject_cast<const DrawItemButton*>(&widget) != nullptr;
    };
    const bool isTitleBar = around(at, panel, isTitle);
    const QPointer<DrawItemButton> button =
        qobject_cast<DrawItemButton*>(around(at, panel, isButton));
    const QPointer<BaseTabelScene> section(&panel);
    if (isTitleBar)
        panel.setFold(!panel.getFold());
    emit sgnSection(&panel);
    if (section && button)
        section->lookAt(button->dataId(), button->id());
    return true;
}

bool ReadOnlyLook::useKey(const QKeyEvent& event)
{
    if (event.modifiers() & ~Qt::KeypadModifier)
        return false;
    QScrollBar& bar = *m_view.verticalScrollBar();
    switch (event.key()) {
    case Qt::Key_Up:
        bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
        return true;
    case Qt::Key_Down:
        bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
        return true;
    case Qt::Key_PageUp:
        bar.triggerAction(QAbstractSlider::SliderPageStepSub);
        return true;
    case Qt::Key_PageDown:
        bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
        return true;
    case Qt::Key_Home:
        bar.triggerAction(QAbstractSlider::SliderToMinimum);
        return true;
    case Qt::Key_End:
        bar.triggerAction(QAbstractSlider::SliderToMaximum);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        showNext(event.key() == Qt::Key_Right ? 1 : -1);
        return true;
    default:
        return false;
    }
}

/// The entry before or after the current one, in the next section where this one has no more.
void ReadOnlyLook::showNext(int way)
{
    struct Place {
        BaseTabelScene* panel;
        int dataId;
    };
    std::vector<Place> places;
    int current = -1;
    for (BaseTabelScene* panel : qAsConst(m_panels)) {
        for (const auto& entry : panel->ruleData()->getAllData()) {
            if (panel->getSelected() && entry->id() == panel->ruleData()->getSelectedDataId())
                current = static_cast<int>(places.size());
            places.push_back({panel, entry->id()});
        }
    }
    const int next = current + way;
    if (next < 0 || next >= static_cast<int>(places.size()))
        return;
    const Place place = places[static_cast<std::size_t>(next)];
    const QPointer<BaseTabelScene> panel(place.panel);
    if (panel->getFold())
        panel->setFold(false);
    emit sgnSection(panel);
    if (panel)
        panel->lookAt(place.dataId, 0);
}

} // namespace IntelligentRulesUI
