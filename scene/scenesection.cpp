#include "scene/scenesection.h"

#include "host/api/rowcontract.h"
#include "scene/scenetitlebar.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/focus.h"
#include "tabel/layoutpause.h"
#include "tabel/ruleitemwidgettabel.h"
#include "tabel/rulewidgettabel.h"
#include "tabel/scrolling.h"
#include "tabel/titlelabel.h"

#include <QApplication>
#include <QMouseEvent>

namespace
{

constexpr int kFoldedMargin = 2;
constexpr int kTitleGap = 5;

} // namespace

SceneSection::SceneSection(QWidget* parent)
    : WidgetTabel(parent), m_widgets(this), m_focused(QApplication::focusWidget())
{
    setProperty(RowContract::kSelected, false);
    connect(m_widgets.titleBar, &SceneTitleBar::sgnPressed, this, [this] { setFold(!m_folded); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* old, QWidget* now) { focusMoved(old, now); });
}

SceneSection::~SceneSection()
{
    // The focus may still go with the children, when nothing but their parent is left of this.
    disconnect(qApp, nullptr, this, nullptr);
}

void SceneSection::finishEdits()
{
    m_widgets.controls->finishEdits();
}

void SceneSection::setSelected(bool selected)
{
    finishEdits();
    m_selected = selected;
    if (!selected && !dropFocus())
        return;
    setProperty(RowContract::kSelected, selected);
    m_widgets.titleBar->setSelected(selected);
    updateMask();
}

void SceneSection::setSelectMode(bool on)
{
    m_selectMode = on;
    if (!on)
        return;
    m_widgets.ruleFucBar->hide();
    m_widgets.childFucBar->hide();
    for (QWidget* widget : QList<QWidget*>{m_widgets.actions, m_widgets.hint}) {
        widget->hide();
        widget->setEnabled(false);
    }
}

void SceneSection::setFold(bool folded)
{
    const QWidget* const focused = QApplication::focusWidget();
    const bool holdsFocus = focused && isAncestorOf(focused);
    if (folded && !m_widgets.titleBar->hasFocus() && !dropFocus())
        return;
    const bool isOpened = m_folded && !folded;
    m_folded = folded;
    m_widgets.titleBar->setFolded(folded);
    relayout(0, 0);
    updateContentWidgets();
    updateMask();
    if (isOpened)
        Scrolling::showWhole(*this);
    if (folded && holdsFocus && isVisible())
        m_widgets.titleBar->setFocus();
}

void SceneSection::showHint()
{
    m_widgets.hint->setTitle(hintText());
    m_widgets.nameActions(actedOn());
}

void SceneSection::updateContentWidgets()
{
    showHint();
    const bool shown = !m_folded && !m_selectMode && !m_widgets.drawItems->isEmpty();
    m_widgets.actions->setVisible(shown);
    m_widgets.hint->setVisible(shown);
}

void SceneSection::updateMask()
{
    m_widgets.mask->setGeometry(rect());
    m_widgets.mask->setVisible(!m_selected && !m_folded);
    m_widgets.mask->raise();
}

void SceneSection::checkLayout()
{
    const LayoutPause pause(this);
    m_widgets.fitHint();
    const auto hasButtons = [this](RuleWidgetTabel* bar) {
        return !m_selectMode && !bar->getVisibleItems().isEmpty();
    };
    const bool hasEntries = !m_widgets.drawItems->isEmpty();
    m_widgets.ruleFucBar->setVisible(hasButtons(m_widgets.ruleFucBar));
    m_widgets.drawItems->setVisible(hasEntries);
    m_widgets.childFucBar->setVisible(hasEntries && hasButtons(m_widgets.childFucBar));
    m_widgets.childDrawItems->setVisible(!m_widgets.childDrawItems->isEmpty());
    m_widgets.controls->setVisible(hasCurrentEntry() && !m_widgets.controls->isEmpty());
    updateContentWidgets();
    relayout(0, 0);
}

void SceneSection::relayout(int x, int y)
{
    const int titleHeight = m_widgets.titleBar->height();
    m_widgets.titleBar->setGeometry(0, 0, width(), titleHeight);
    if (m_folded)
        resize(width(), titleHeight + kFoldedMargin);
    else
        WidgetTabel::relayout(x, y == 0 ? titleHeight + kTitleGap : y);
    updateMask();
}

void SceneSection::resizeEvent(QResizeEvent* event)
{
    WidgetTabel::resizeEvent(event);
    updateMask();
}

void SceneSection::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    emit sgnTrySelectedlScene();
}

void SceneSection::focusMoved(const QWidget* old, const QWidget* now)
{
    // Who heard of it before may have moved it on, or deleted the widget that lost it.
    if (now != QApplication::focusWidget())
        return;
    const QWidget* const left = m_focused == old ? m_focused.data() : nullptr;
    m_focused = now;
    if (!now || now == this)
        return;
    // Qt passes the focus on when its widget is disabled or hidden; the operator moved nothing.
    const bool isPushed = left && !(left->isEnabled() && left->isVisible());
    if (isPushed && m_selected && isVisible() && isAncestorOf(left) && !isAncestorOf(now))
        setFocus();
    if (isPushed || !isAncestorOf(now))
        return;
    if (m_folded && now != m_widgets.titleBar) {
        setFold(false);
        if (now == QApplication::focusWidget())
            Scrolling::showWhole(*now);
    }
    if (!m_selected)
        emit sgnEntered();
}

void SceneSection::focusInEvent(QFocusEvent* event)
{
    WidgetTabel::focusInEvent(event);
    m_widgets.titleBar->setHoldsFocus(true);
}

void SceneSection::focusOutEvent(QFocusEvent* event)
{
    WidgetTabel::focusOutEvent(event);
    m_widgets.titleBar->setHoldsFocus(false);
}

bool SceneSection::becomeSelected()
{
    const QPointer<SceneSection> self(this);
    if (!m_selected)
        emit sgnTrySelectedlScene();
    return self;
}

bool SceneSection::takeFocusFrom(const QWidget& part)
{
    const QWidget* focused = QApplication::focusWidget();
    if (!focused || !part.isAncestorOf(focused))
        return true;
    const QPointer<SceneSection> self(this);
    Focus::takeFrom(part);
    if (self && isVisible())
        setFocus();
    return self;
}

bool SceneSection::dropFocus()
{
    const QPointer<SceneSection> self(this);
    Focus::takeFrom(*this);
    return self;
}

void SceneSection::orderFocus()
{
    QWidget* previous = this;
    // Qt lists children depth first, in the order in which they were added.
    const QList<QWidget*> widgets = findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!(widget->focusPolicy() & Qt::TabFocus))
            continue;
        QWidget::setTabOrder(previous, widget);
        previous = widget;
    }
}
