#include "workbench/operatorhand.h"

#include "workbench/inputevents.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>

namespace OperatorHand
{

namespace
{

constexpr int kOptionInset = 12;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(OperatorHand)
};

QString obstacle(QWidget* widget, const QPoint& position)
{
    if (!widget)
        return Texts::tr("there is no such widget");
    if (!widget->isVisible())
        return Texts::tr("it is hidden");
    if (!widget->isEnabled())
        return Texts::tr("it is disabled");
    const QWidget* hit = widget->window()->childAt(widget->mapTo(widget->window(), position));
    if (hit != widget && !(hit && widget->isAncestorOf(hit)))
        return Texts::tr("it is covered; select its section first");
    return {};
}

QWidget* focusTaker(QWidget* pressed)
{
    QWidget* taker = pressed;
    while (taker && !(taker->isEnabled() && (taker->focusPolicy() & Qt::ClickFocus)))
        taker = taker->isWindow() ? nullptr : taker->parentWidget();
    return taker;
}

/// A window that is not the active one moves its focus without telling what it leaves, but a press
/// of an operator's own hand would have made it active: an edit in progress ends.
void leaveFocused(QWidget* pressed)
{
    QWidget* focused = pressed->window()->focusWidget();
    const QWidget* taker = focusTaker(pressed);
    if (!focused || !taker || taker == focused || pressed->isActiveWindow())
        return;
    QFocusEvent leave(QEvent::FocusOut, Qt::MouseFocusReason);
    QCoreApplication::sendEvent(focused, &leave);
}

// Letter by letter, in any script.
void typeText(QLineEdit* edit, const QString& text)
{
    for (const char32_t letter : text.toStdU32String())
        InputEvents::key(edit, Qt::Key_unknown, QString::fromUcs4(&letter, 1), Qt::NoModifier);
}

void pressKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    InputEvents::key(widget, key, InputEvents::typedBy(key), modifiers);
}

} // namespace

void scrollIntoView(QWidget* widget)
{
    for (QWidget* above = widget ? widget->parentWidget() : nullptr; above;
         above = above->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(above))
            area->ensureWidgetVisible(widget);
    }
}

QString click(QWidget* widget)
{
    if (!widget)
        return obstacle(widget, {});
    scrollIntoView(widget);
    // Check boxes and radio buttons react on indicator and text, which begin at the left; the
    // middle of an entry's button is beside its check box.
    const bool isOption = qobject_cast<QCheckBox*>(widget) != nullptr ||
                          qobject_cast<QRadioButton*>(widget) != nullptr;
    const QPoint middle = widget->rect().center();
    const QPoint position(isOption ? qMin(middle.x(), kOptionInset) : middle.x(), middle.y());
    return clickAt(widget, position, Qt::LeftButton);
}

QString clickAt(QWidget* widget, const QPoint& position, Qt::MouseButton button,
                Qt::KeyboardModifiers modifiers)
{
    const QString why = obstacle(widget, position);
    if (!why.isEmpty())
        return why;
    leaveFocused(widget);
    InputEvents::click(widget, button, modifiers, position);
    return {};
}

QString doubleClickAt(QWidget* widget, const QPoint& position, Qt::MouseButton button,
                      Qt::KeyboardModifiers modifiers)
{
    const QString why = clickAt(widget, position, button, modifiers);
    if (why.isEmpty())
        InputEvents::doubleClick(widget, button, modifiers, position);
    return why;
}

QString drag(QWidget* widget, const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers)
{
    const QString why = obstacle(widget, from);
    if (!why.isEmpty())
        return why;
    leaveFocused(widget);
    InputEvents::drag(widget, from, to, modifiers);
    return {};
}

QString moveTo(QWidget* widget, const QPoint& position)
{
    const QString why = obstacle(widget, position);
    if (why.isEmpty())
        InputEvents::movePointer(widget, position);
    return why;
}

QString type(QLineEdit* edit, const QString& text, bool finish)
{
    const QString why = click(edit);
    if (!why.isEmpty())
        return why;
    if (edit->isReadOnly())
        return QCoreApplication::translate("OperatorHand", "it cannot be edited");
    edit->setFocus(Qt::MouseFocusReason);
    edit->selectAll();
    pressKey(edit, Qt::Key_Delete);
    typeText(edit, text);
    if (finish)
        pressKey(edit, Qt::Key_Return);
    return {};
}

void focus(QWidget* widget)
{
    leaveFocused(widget);
    widget->setFocus(Qt::MouseFocusReason);
}

void press(QWidget* widget, const QKeySequence& key)
{
    const int code = int(key[0]);
    const Qt::KeyboardModifiers modifiers(code & int(Qt::KeyboardModifierMask));
    const int plain = code & ~int(Qt::KeyboardModifierMask);
    if (modifiers == Qt::ShiftModifier && plain >= Qt::Key_A && plain <= Qt::Key_Z)
        InputEvents::key(widget, plain, QString(QChar(plain)), modifiers);
    else
        pressKey(widget, plain, modifiers);
}

} // namespace OperatorHand
