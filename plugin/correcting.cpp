#include "plugin/correcting.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "scene/basetabelscene.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>

namespace IntelligentRulesUI
{

namespace
{

constexpr int kLookEvery = 50; // ms

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
           key == Qt::Key_Meta || key == Qt::Key_AltGr;
}

} // namespace

Correcting::Correcting(QObject* parent) : QObject(parent)
{
    m_timer.setInterval(kLookEvery);
    connect(&m_timer, &QTimer::timeout, this, &Correcting::lookAtButtons);
}

void Correcting::setPanel(BaseTabelScene* panel)
{
    putBack();
    DrawScene* canvas = panel ? panel->getDrawScene() : nullptr;
    m_figures.setScene(canvas, [panel](const DrawItem& item) {
        return panel->ruleData()->getTemplate()->forbiddenAreaOf(item);
    });
}

void Correcting::press(Qt::MouseButton button, const QPoint& at, Qt::KeyboardModifiers modifiers)
{
    if (button != Qt::LeftButton)
        return m_figures.chooseNothing();
    if (modifiers & Qt::ShiftModifier) {
        m_figures.removeAt(at);
        return;
    }
    if (!m_figures.take(at, modifiers & Qt::ControlModifier))
        return;
    m_by = By::Mouse;
    m_takenAt = at;
    m_isMoved = false;
    m_isToldOfButtons = QGuiApplication::mouseButtons() & Qt::LeftButton;
    if (m_isToldOfButtons)
        m_timer.start();
    qApp->installEventFilter(this);
}

bool Correcting::move(const QPoint& at, Qt::MouseButtons buttons)
{
    if (m_by == By::Mouse && (buttons & Qt::LeftButton)) {
        m_isMoved = true;
        return moveTo(at);
    }
    if (m_by == By::Mouse) {
        const QPointer<Correcting> self(this);
        end();
        if (!self)
            return false;
    }
    return m_by == By::Nobody && m_figures.hover(at);
}

/// Some surfaces tell of a click with the press, others when the button is let go.
void Correcting::click()
{
    const bool isHeld = QGuiApplication::mouseButtons() & Qt::LeftButton;
    if (m_by == By::Mouse && (m_isToldOfButtons ? !isHeld : m_isMoved))
        end();
}

void Correcting::toggle(const QPoint& at)
{
    if (m_by != By::Nobody)
        return end();
    if (!m_figures.take(at, false))
        return;
    m_by = By::Keys;
    m_takenAt = at;
}

void Correcting::end()
{
    if (m_by == By::Nobody)
        return;
    stop();
    m_figures.letGo();
    emit sgnEnded();
}

void Correcting::endByKey(int key)
{
    if (m_by == By::Mouse && !isModifier(key))
        end();
}

void Correcting::follow()
{
    if (!m_figures.hasChosen() || m_figures.isChosenThere())
        return;
    const QPointer<Correcting> self(this);
    end();
    if (self)
        m_figures.chooseNothing();
}

void Correcting::putBack()
{
    stop();
    m_figures.putBack();
}

void Correcting::stop()
{
    m_by = By::Nobody;
    m_timer.stop();
    qApp->removeEventFilter(this);
}

/// Most buttons are let go over the window; only surfaces need not say so.
bool Correcting::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton)
        end();
    return false;
}

void Correcting::lookAtButtons()
{
    if (!(QGuiApplication::mouseButtons() & Qt::LeftButton))
        end();
}

} // namespace IntelligentRulesUI
