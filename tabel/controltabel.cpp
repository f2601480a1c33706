#include "tabel/controltabel.h"

#include "Protocol/ruleprotocolitem.h"
#include "tabel/numbertip.h"
#include "tabel/plaintext.h"
#include "tabel/titlelabel.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QStyle>

#include <algorithm>

namespace
{

bool isButton(const QWidget& widget)
{
    return qobject_cast<const QAbstractButton*>(&widget);
}

bool hasText(const QWidget& widget)
{
    return isButton(widget) && !static_cast<const QAbstractButton&>(widget).text().isEmpty();
}

} // namespace

ControlTabel::ControlTabel(QWidget* parent) : WidgetTabel(parent)
{
    titleLabel()->show();
}

void ControlTabel::init()
{
    setTitle(m_item ? m_item->caption() : QString());
    setValue(itemValue(), false);
}

void ControlTabel::setProtocolItem(RuleProtocolItem* item)
{
    m_item = item;
    if (m_item)
        m_item->setRow(this);
    init();
    rememberLoaded();
}

void ControlTabel::setTitle(const QString& title)
{
    WidgetTabel::setTitle(title);
    const QString name = titleLabel()->text();
    setAccessibleName(name);
    for (QWidget* editor : editors()) {
        if (editor->objectName() == QLatin1String(RowContract::kMinimum))
            editor->setAccessibleName(tr("%1, minimum").arg(name));
        else if (editor->objectName() == QLatin1String(RowContract::kMaximum))
            editor->setAccessibleName(tr("%1, maximum").arg(name));
        else if (!hasText(*editor))
            editor->setAccessibleName(name);
    }
    describeEditors();
}

QString ControlTabel::key() const
{
    return m_item ? m_item->key() : QString();
}

QVariant ControlTabel::itemValue() const
{
    return m_item ? m_item->defaultValue() : QVariant();
}

void ControlTabel::loadValue(const QVariant& value)
{
    showValue(value);
    rememberLoaded();
}

void ControlTabel::rememberLoaded()
{
    m_loaded = value();
    m_touched = false;
}

bool ControlTabel::isModified() const
{
    return m_touched || value() != m_loaded;
}

void ControlTabel::announce()
{
    m_touched = isModified();
    emit sgnControlValueChange(key());
}

void ControlTabel::setMark(const QString& reason)
{
    const bool wasMarked = isMarked();
    m_mark = reason;
    showMark(wasMarked);
}

void ControlTabel::setTip(const QString& tip)
{
    m_tip = tip;
    showMark(isMarked());
}

void ControlTabel::setRefusing(bool refuses)
{
    const bool wasMarked = isMarked();
    m_refusal = refuses && !m_tip.isEmpty() ? NumberTip::refusal(m_tip) : QString();
    showMark(wasMarked);
}

void ControlTabel::setFault(const QString& message)
{
    if (m_fault == message)
        return;
    const bool wasMarked = isMarked();
    m_fault = message;
    showMark(wasMarked);
}

const QString& ControlTabel::reason() const
{
    if (!m_refusal.isEmpty())
        return m_refusal;
    return m_fault.isEmpty() ? m_mark : m_fault;
}

void ControlTabel::setCaptionWidth(int width, int most)
{
    m_captionWidth = width;
    m_mostCaptionWidth = most;
    fitCaption();
}

void ControlTabel::fitCaption()
{
    if (m_captionWidth == 0)
        return;
    const int text = titleLabel()->fontMetrics().horizontalAdvance(titleLabel()->text());
    // With the part of a pixel that the text may be wider.
    const int needed = text + 1 + TitleLabel::kSignWidth;
    const int marked = qBound(m_captionWidth, needed, m_mostCaptionWidth);
    titleLabel()->setFixedWidth(isMarked() ? marked : m_captionWidth);
    relayout(0, 0);
}

void ControlTabel::showMark(bool wasMarked)
{
    setToolTip(PlainText::toolTip(isMarked() ? reason() : m_tip));
    describeEditors();
    if (wasMarked == isMarked())
        return;
    titleLabel()->setWarning(isMarked());
    fitCaption();
    for (QWidget* widget : findChildren<QWidget*>())
        style()->polish(widget);
}

void ControlTabel::describeEditors()
{
    for (QWidget* editor : editors()) {
        editor->setAccessibleDescription(isMarked() ? reason() : usualDescription(*editor));
    }
}

QString ControlTabel::usualDescription(const QWidget& editor) const
{
    // Options have tool tips of their own.
    if (isButton(editor))
        return hasText(editor) ? QString() : tr("On or off");
    const auto* const edit = qobject_cast<const QLineEdit*>(&editor);
    if (!m_tip.isEmpty() || !edit)
        return m_tip;
    return tr("Up to %1 characters").arg(edit->maxLength());
}

QList<QWidget*> ControlTabel::editors() const
{
    QList<QWidget*> widgets = findChildren<QWidget*>();
    const auto takesNoFocus = [](const QWidget* widget) {
        return !(widget->focusPolicy() & Qt::TabFocus);
    };
    widgets.erase(std::remove_if(widgets.begin(), widgets.end(), takesNoFocus), widgets.end());
    return widgets;
}
