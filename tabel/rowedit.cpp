#include "tabel/rowedit.h"

#include "draw/shortenedtext.h"
#include "host/api/limits.h"
#include "tabel/editmenu.h"
#include "tabel/numberentry.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDoubleValidator>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QSignalBlocker>
#include <cmath>

namespace
{

/// Whether a key types a letter, rather than being a shortcut. AltGr is Ctrl and Alt.
bool isTyping(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return !event.text().isEmpty() && event.text().at(0).isPrint() &&
           modifiers != Qt::ControlModifier;
}

bool isPlain(const QKeyEvent& event)
{
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool isReturn(const QKeyEvent& event)
{
    return isPlain(event) && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter);
}

bool isEscape(const QKeyEvent& event)
{
    return isPlain(event) && event.key() == Qt::Key_Escape;
}

/// With either of the keys that people know it by, whatever the platform takes for one.
bool isRedo(const QKeyEvent& event)
{
    return event.matches(QKeySequence::Redo) ||
           (event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier);
}

} // namespace

RowEdit::RowEdit(QWidget* parent) : QLineEdit(parent)
{
    setMaxLength(Limits::kInput);
    connect(this, &QLineEdit::textChanged, this, &RowEdit::sltTextChanged);
    connect(this, &QLineEdit::selectionChanged, this, &RowEdit::sltSelectionChanged);
}

void RowEdit::showValue(const QString& text)
{
    m_value = text;
    setRefusal(Refusal::None);
    // Where less can be typed anyway, as in names, a longer text is typed over.
    const bool isTooLong = text.size() > Limits::kInput && maxLength() == Limits::kInput;
    setReadOnly(isTooLong);
    setToolTip(isTooLong ? tr("The text is too long to be edited here.") : QString());
    const QString shown = ShortenedText::of(text, Limits::kInput);
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

bool RowEdit::isForNumbers() const
{
    return !isReadOnly() && NumberEntry::isFor(validator());
}

/// A step back is the window's where the edit has none left.
bool RowEdit::event(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QLineEdit::event(event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isLeft = (key.matches(QKeySequence::Undo) && !isUndoAvailable()) ||
                        (isRedo(key) && !isRedoAvailable());
    const bool isOwn = isReturn(key) || isEscape(key) || isRedo(key) || isStep(key);
    if (!isLeft && !(isOwn && event->type() == QEvent::ShortcutOverride))
        return QLineEdit::event(event);
    event->setAccepted(!isLeft);
    return true;
}

void RowEdit::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    EditMenu::translate(*menu);
    menu->popup(event->globalPos());
}

void RowEdit::keyPressEvent(QKeyEvent* event)
{
    if (isEscape(*event) || isReturn(*event)) {
        if (isEscape(*event))
            pressEscape();
        else
            pressReturn(event);
        event->accept(); // it ends this edit, and nothing around it
        return;
    }
    if (isStep(*event)) {
        event->accept();
        step(event->key() == Qt::Key_Up ? 1 : -1);
        return;
    }
    if (isRedo(*event)) {
        redo();
        event->accept();
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        paste();
        event->accept();
        return;
    }
    const bool deletes = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (deletes && m_refusal == Refusal::Input)
        setRefusal(Refusal::None);
    if (!isForNumbers() || !isTyping(*event)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    enter(event->text());
    event->accept();
}

void RowEdit::paste()
{
    if (isForNumbers())
        enterPasted(QGuiApplication::clipboard()->text());
    else
        QLineEdit::paste();
}

void RowEdit::mouseReleaseEvent(QMouseEvent* event)
{
    const QClipboard* clipboard = QGuiApplication::clipboard();
    const bool pastes = event->button() == Qt::MiddleButton && clipboard->supportsSelection();
    if (!pastes || !isForNumbers()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    deselect();
    enterPasted(clipboard->text(QClipboard::Selection));
}

void RowEdit::inputMethodEvent(QInputMethodEvent* event)
{
    const QString committed = isForNumbers() ? event->commitString() : QString();
    if (!committed.isEmpty()) {
        event->setCommitString(QString());
        enter(committed);
    }
    QLineEdit::inputMethodEvent(event);
}

void RowEdit::dropEvent(QDropEvent* event)
{
    if (!isForNumbers() || event->source() == this) {
        QLineEdit::dropEvent(event);
        return;
    }
    setCursorPosition(cursorPositionAt(event->pos()));
    enterPasted(event->mimeData()->text());
    event->acceptProposedAction();
}

void RowEdit::enterPasted(const QString& text)
{
    const QString trimmed = text.trimmed();
    if (!trimmed.isEmpty())
        enter(trimmed);
}

void RowEdit::enter(const QString& typed)
{
    if (m_refusal == Refusal::Input)
        return;
    QString rest = text();
    const int position = hasSelectedText() ? selectionStart() : cursorPosition();
    rest.remove(position, selectedText().size());
    const NumberEntry entry(typed, rest, position, *validator());
    const QPointer<RowEdit> self(this);
    switch (entry.text.isEmpty() ? NumberEntry::Fate::Dropped : entry.fate) {
    case NumberEntry::Fate::Taken:
        insert(entry.text);
        break;
    case NumberEntry::Fate::Above:
        // Whoever listens puts the maximum in its place.
        emit textEdited(entry.result);
        break;
    case NumberEntry::Fate::Below:
        selectAll();
        insert(NumberEntry::minimum(*validator()));
        break;
    case NumberEntry::Fate::Refused:
        setRefusal(Refusal::Input);
        break;
    case NumberEntry::Fate::Dropped:
        break;
    }
    if (self && entry.isCut)
        setRefusal(Refusal::Input);
}

void RowEdit::setStepRange(int bottom, int top)
{
    m_stepBottom = bottom;
    m_stepTop = top;
}

bool RowEdit::isStep(const QKeyEvent& event) const
{
    const bool isArrow = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    return isArrow && isPlain(event) && !isReadOnly() &&
           qobject_cast<const QIntValidator*>(validator());
}

void RowEdit::step(int by)
{
    const std::optional<int> number = stepped(by);
    if (!number)
        return;
    const QPointer<RowEdit> self(this);
    setRefusal(Refusal::None);
    if (!self)
        return;
    selectAll();
    insert(QString::number(*number));
    if (self)
        finishEdit();
}

/// The number that a step leads to; none at the end of the range. One out of the range comes back
/// to its end, and none goes farther away.
std::optional<int> RowEdit::stepped(int by) const
{
    const auto& whole = static_cast<const QIntValidator&>(*validator());
    const qint64 bottom = qMax(whole.bottom(), m_stepBottom);
    const qint64 top = qMin(whole.top(), m_stepTop);
    if (bottom > top)
        return {};
    bool isNumber = false;
    const qint64 number = text().toInt(&isNumber);
    if (!isNumber)
        return int(qBound<qint64>(bottom, 0, top));
    if (by > 0 ? number >= top : number <= bottom)
        return {};
    return int(qBound(bottom, number + by, top));
}

void RowEdit::pressReturn(QKeyEvent* event)
{
    const QPointer<RowEdit> self(this);
    if (becomesMinimum()) {
        emit editingFinished();
        event->ignore();
    } else {
        QLineEdit::keyPressEvent(event);
    }
    if (self && isModified() && !hasAcceptableInput())
        setRefusal(Refusal::Text);
}

void RowEdit::pressEscape()
{
    setRefusal(Refusal::None);
    if (isModified())
        showValue(m_value);
}

bool RowEdit::becomesMinimum() const
{
    const auto* range = qobject_cast<const QDoubleValidator*>(validator());
    if (!range || !std::isfinite(range->bottom()) || !isModified() || hasAcceptableInput())
        return false;
    bool isNumber = false;
    const double number = text().toDouble(&isNumber);
    return isNumber ? number < range->bottom() : m_value.isEmpty();
}

void RowEdit::setRefusal(Refusal refusal)
{
    if (m_refusal == refusal)
        return;
    m_refusal = refusal;
    emit sgnRefusalChanged();
}

void RowEdit::sltTextChanged()
{
    if (m_refusal == Refusal::Text && hasAcceptableInput())
        setRefusal(Refusal::None);
}

void RowEdit::sltSelectionChanged()
{
    if (m_refusal == Refusal::Input && hasSelectedText())
        setRefusal(Refusal::None);
}

void RowEdit::finishEdit()
{
    setRefusal(Refusal::None);
    if (!isModified())
        return;
    if (hasAcceptableInput() || becomesMinimum() || mend())
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
    const QPointer<RowEdit> self(this);
    const bool isLeaving = event->reason() != Qt::PopupFocusReason;
    if (isLeaving) {
        setRefusal(Refusal::None);
        if (becomesMinimum())
            emit editingFinished();
    }
    if (!self)
        return;
    if (!isModified()) {
        leaveUntouched(event);
        return;
    }
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
