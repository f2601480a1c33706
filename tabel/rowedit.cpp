#include "tabel/rowedit.h"

#include "draw/shortenedtext.h"

#include <QFocusEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QValidator>

namespace
{

/// Laying out more takes longer than an operator waits; a panel can have a thousand edits.
constexpr int kLongest = 2000;

} // namespace

RowEdit::RowEdit(QWidget* parent) : QLineEdit(parent)
{
    setMaxLength(kLongest);
}

void RowEdit::showValue(const QString& text)
{
    m_value = text;
    // Where less can be typed anyway, as in names, a longer text is typed over.
    const bool isTooLong = text.size() > kLongest && maxLength() == kLongest;
    setReadOnly(isTooLong);
    setToolTip(isTooLong ? tr("The text is too long to be edited here.") : QString());
    const QString shown = ShortenedText::of(text, kLongest);
    if (!isUntouchedWith(shown))
        setText(shown);
}

QString RowEdit::value() const
{
    return isReadOnly() ? m_value : text();
}

bool RowEdit::isUntouchedWith(const QString& text) const
{
    return this->text() == text && cursorPosition() == text.size() && !hasSelectedText() &&
           !isModified() && !isUndoAvailable() && !isRedoAvailable();
}

void RowEdit::finishEdit()
{
    if (!isModified())
        return;
    if (hasAcceptableInput() || mend())
        emit editingFinished();
    else
        showValue(m_value);
}

bool RowEdit::mend()
{
    QString text = this->text();
    int position = cursorPosition();
    validator()->fixup(text);
    if (validator()->validate(text, position) != QValidator::Acceptable)
        return false;
    setText(text);
    return true;
}

void RowEdit::replaceValidator(const QValidator* newValidator)
{
    const QValidator* old = validator();
    setValidator(newValidator);
    if (old && old != newValidator && old->parent() == this)
        delete old;
}

void RowEdit::focusOutEvent(QFocusEvent* event)
{
    if (!isModified()) {
        leaveUntouched(event);
        return;
    }
    const QPointer<RowEdit> self(this);
    const bool isLeaving = event->reason() != Qt::PopupFocusReason;
    QLineEdit::focusOutEvent(event);
    // What was accepted or mended by now is shown as the value.
    if (self && isLeaving && isModified() && !hasAcceptableInput())
        showValue(m_value);
}

void RowEdit::leaveUntouched(QFocusEvent* event)
{
    // A loaded value out of range would be mended and announced by merely passing through.
    const QSignalBlocker quiet(this);
    const QValidator* kept = validator();
    setValidator(nullptr);
    QLineEdit::focusOutEvent(event);
    setValidator(kept);
}
