#include "tabel/drawitembutton.h"

#include "host/api/rowcontract.h"
#include "tabel/focus.h"
#include "tabel/plaintext.h"
#include "tabel/warningsign.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QStyle>

namespace
{

constexpr int kMaxTextLength = 5;

} // namespace

DrawItemButton::DrawItemButton(int id, int dataId, BaseDrawType type, QWidget* parent)
    : ElidedButton(parent), m_id(id), m_dataId(dataId), m_drawType(type)
{
    setCheckable(true);
}

DrawItemButton::~DrawItemButton()
{
    delete m_checkBox.data();
}

void DrawItemButton::setText(const QString& text)
{
    m_fullText = text;
    const bool isLong = text.size() > kMaxTextLength;
    const QString shown = isLong ? text.left(kMaxTextLength - 1) + QLatin1String("...") : text;
    ElidedButton::setText(PlainText::button(shown));
    setAccessibleName(PlainText::line(text));
    if (m_checkBox)
        nameCheckBox();
    showTip();
}

void DrawItemButton::setFault(const QString& message)
{
    if (m_fault == message)
        return;
    m_fault = message;
    setIcon(isMarked() ? WarningSign::icon() : QIcon());
    setIconSize({WarningSign::kExtent, WarningSign::kExtent});
    setAccessibleDescription(message);
    style()->polish(this);
    showTip();
}

void DrawItemButton::setEmphasised(bool on)
{
    if (m_isEmphasised == on)
        return;
    m_isEmphasised = on;
    style()->polish(this);
}

void DrawItemButton::showTip()
{
    setToolTip(
        PlainText::toolTip(isMarked() ? m_fullText + QLatin1Char('\n') + m_fault : m_fullText));
}

void DrawItemButton::setEnabledState(bool on)
{
    m_enabledState = on;
    if (m_checkBox)
        m_checkBox->setChecked(on);
}

void DrawItemButton::setEnableCheckBoxVisible(bool visible)
{
    m_carriesCheckBox = visible;
    if (visible) {
        setStyleSheet(QStringLiteral("QPushButton{padding-left: 10px;}"));
        if (!m_checkBox)
            createCheckBox();
    }
    syncCheckBox();
}

void DrawItemButton::createCheckBox()
{
    m_checkBox = new QCheckBox(parentWidget());
    m_checkBox->setStyleSheet(QStringLiteral(
        "QCheckBox{background: transparent;}; QCheckBox::indicator{subcontrol-origin: border; "
        "subcontrol-position: left center; }"));
    m_checkBox->setChecked(m_enabledState);
    nameCheckBox();
    connect(m_checkBox, &QCheckBox::clicked, this, [this](bool on) {
        m_enabledState = on;
        emit sgnEnableChanged(m_dataId, on);
    });
}

void DrawItemButton::nameCheckBox()
{
    m_checkBox->setAccessibleName(tr("Enable %1").arg(accessibleName()));
}

void DrawItemButton::syncCheckBox()
{
    if (!m_checkBox)
        return;
    if (m_checkBox->parentWidget() != parentWidget())
        m_checkBox->setParent(parentWidget());
    m_checkBox->setGeometry(x() - 1, y() + height() / 2 - 7, 17, 14);
    m_checkBox->setEnabled(isEnabled());
    const bool shown = m_carriesCheckBox && !isHidden() && parentWidget();
    m_checkBox->setVisible(shown);
    // Named only while it shows, so that nobody finds the box of a button that is going away.
    const QString name = shown ? QString::fromLatin1(RowContract::kEnable) : QString();
    if (m_checkBox->objectName() != name) {
        m_checkBox->setObjectName(name);
        m_checkBox->style()->polish(m_checkBox); // it has another look by that name
    }
    m_checkBox->raise();
}

bool DrawItemButton::event(QEvent* event)
{
    const bool handled = ElidedButton::event(event);
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::ParentChange:
    case QEvent::EnabledChange:
        syncCheckBox();
        break;
    case QEvent::Enter:
    case QEvent::Leave:
        emit sgnPointed();
        break;
    default:
        break;
    }
    return handled;
}

void DrawItemButton::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    emit sgnMenuWanted(m_dataId, isByKey ? mapToGlobal(rect().center()) : event->globalPos());
}

void DrawItemButton::keyPressEvent(QKeyEvent* event)
{
    const bool isShifted = event->modifiers() == Qt::ShiftModifier;
    if (event->key() != Qt::Key_Menu && !(event->key() == Qt::Key_F10 && isShifted)) {
        ElidedButton::keyPressEvent(event);
        return;
    }
    QContextMenuEvent wanted(QContextMenuEvent::Keyboard, rect().center());
    contextMenuEvent(&wanted);
}

/// The base would take the other buttons of the group out of the tab order.
void DrawItemButton::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call): skipped on purpose
    // Coming back from a menu or another window is neither by mouse nor by key.
    if (!Focus::isForAWhile(event->reason()))
        m_hasKeyFocus =
            event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    emit sgnPointed();
}

void DrawItemButton::focusOutEvent(QFocusEvent* event)
{
    ElidedButton::focusOutEvent(event);
    if (!Focus::isForAWhile(event->reason()))
        m_hasKeyFocus = false;
    emit sgnPointed();
}

void DrawItemButton::nextCheckState()
{
    setChecked(true);
}
