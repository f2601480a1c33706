#include "workbench/sessionrecorder.h"

#include "host/api/rowcontract.h"
#include "host/video/qrtspvideownd.h"
#include "workbench/recordedstep.h"
#include "workbench/rowhand.h"
#include "workbench/sessionfile.h"
#include "workbench/workbenchwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QMenu>
#include <QMessageBox>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStatusBar>
#include <QTimer>
#include <QValidator>

#include <memory>
#include <utility>

namespace
{

Q_LOGGING_CATEGORY(lcRecorder, "rules.workbench.recorder", QtWarningMsg)

/// Signals that belong to properties have no common signature to be connected by.
void connectChange(QObject& from, const QMetaProperty& property, QObject& to, const char* slot)
{
    const QMetaObject& meta = *to.metaObject();
    if (property.hasNotifySignal())
        QObject::connect(&from, property.notifySignal(), &to, meta.method(meta.indexOfMethod(slot)),
                         Qt::UniqueConnection);
}

QMetaProperty propertyOf(const QObject& object, const char* name)
{
    const QMetaObject& meta = *object.metaObject();
    return meta.property(meta.indexOfProperty(name));
}

/// Whether @p edit, left empty, shows what it held before.
bool isEmptyDropped(const QLineEdit& edit)
{
    QString text;
    int position = 0;
    if (!edit.validator())
        return false;
    edit.validator()->fixup(text);
    return edit.validator()->validate(text, position) != QValidator::Acceptable;
}

} // namespace

SessionRecorder::SessionRecorder(WorkbenchWindow& window, QObject* parent)
    : QObject(parent),
      m_window(window),
      m_rulesWindow(window.rulesWindow()),
      m_finder(m_rulesWindow),
      m_loaded(window.options())
{
}

bool SessionRecorder::open(const QString& path, QString& error)
{
    const auto file =
        std::make_shared<SessionFile>([this](const QString& line) { emit sgnFailed(line); });
    if (!file->open(path, error))
        return false;
    connect(this, &SessionRecorder::sgnStep, this, [file](auto& step) { file->append(step); });
    connect(this, &SessionRecorder::sgnLastReplaced, this,
            [file](auto& step) { file->replaceLast(step); });
    start();
    return true;
}

void SessionRecorder::start()
{
    for (QWidget* widget : m_rulesWindow->findChildren<QWidget*>())
        watch(widget);
    connectChange(*m_rulesWindow, propertyOf(*m_rulesWindow, RowContract::kUsedKey), *this,
                  "sltKeyUsed()");
    connect(&m_window, &WorkbenchWindow::sgnLoad, this, &SessionRecorder::sltLoad,
            Qt::UniqueConnection);
    connect(&m_window, &WorkbenchWindow::sgnCheck, this, &SessionRecorder::sltCheck,
            Qt::UniqueConnection);
    connect(&m_window, &WorkbenchWindow::sgnFinish, this, &SessionRecorder::sltFinish,
            Qt::UniqueConnection);
    qApp->installEventFilter(this);
    m_size = m_window.size();
    append(RecordedStep::size(m_window));
}

void SessionRecorder::watch(QWidget* widget)
{
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        connect(button, &QAbstractButton::released, this, &SessionRecorder::sltButtonReleased,
                Qt::UniqueConnection);
    } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        connect(edit, &QLineEdit::textEdited, this, &SessionRecorder::sltTextEdited,
                Qt::UniqueConnection);
    } else if (PanelFinder::isRow(*widget)) {
        connectChange(*widget, propertyOf(*widget, RowContract::kValue), *this, "sltRowChanged()");
    } else if (!qobject_cast<QScrollBar*>(widget) && !RecordedStep::rowAround(*widget)) {
        // What edits a value has a property for it; what does in a row, the row tells.
        connectChange(*widget, widget->metaObject()->userProperty(), *this, "sltOtherEdited()");
    }
}

bool SessionRecorder::eventFilter(QObject* watched, QEvent* event)
{
    if (m_rulesWindow && watched->isWidgetType()) {
        auto* widget = static_cast<QWidget*>(watched);
        auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(widget) : nullptr;
        auto* menu = event->type() == QEvent::Show ? qobject_cast<QMenu*>(widget) : nullptr;
        if (box)
            watchQuestion(*box);
        else if (menu && menu->objectName() == QLatin1String(RowContract::kEntryMenu))
            watchMenu(*menu);
        else if (m_rulesWindow->isAncestorOf(widget))
            see(*widget, *event);
    }
    return QObject::eventFilter(watched, event);
}

void SessionRecorder::see(QWidget& widget, QEvent& event)
{
    if (event.spontaneous())
        recordSettled();
    switch (event.type()) {
    case QEvent::Polish:
        watch(&widget);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        seePress(widget, static_cast<QMouseEvent&>(event));
        break;
    case QEvent::MouseButtonRelease:
        m_isReleaseClick = true;
        endDrag();
        break;
    case QEvent::KeyRelease:
        m_isReleaseClick = true;
        m_isTabbing = false;
        break;
    case QEvent::MouseMove:
        seeMove(widget, static_cast<QMouseEvent&>(event));
        break;
    case QEvent::KeyPress:
        seeKey(widget, static_cast<QKeyEvent&>(event));
        break;
    case QEvent::FocusIn:
        if (m_isTabbing)
            seeTab(widget);
        break;
    case QEvent::FocusOut:
        seeFocusOut(widget, static_cast<QFocusEvent&>(event).reason());
        break;
    default:
        break;
    }
}

// A press on a child comes again for each parent that it is handed on to; only the widget that
// acts counts.
void SessionRecorder::seePress(QWidget& widget, const QMouseEvent& event)
{
    if (&widget == m_window.videoSurface()) {
        pressPicture(event);
        return;
    }
    const QWidget* panel = RecordedStep::panelAround(widget);
    if (!panel || event.type() != QEvent::MouseButtonPress)
        return;
    if (widget.objectName() == QLatin1String(RowContract::kMask))
        record(RecordedStep::select(panel->objectName()));
    else if (widget.objectName() == QLatin1String(RowContract::kTitleBar))
        seeFold(widget);
}

void SessionRecorder::seeFold(const QWidget& titleBar)
{
    if (const QWidget* panel = RecordedStep::panelAround(titleBar))
        record(RecordedStep::fold(panel->objectName(),
                                  !panel->property(RowContract::kFolded).toBool()));
}

void SessionRecorder::pressPicture(const QMouseEvent& event)
{
    const bool isLeft = event.button() == Qt::LeftButton;
    Value press =
        RecordedStep::onPicture("press", event.pos(), m_window.videoSurface()->paneRect(0));
    if (press.isNull() || (!isLeft && event.button() != Qt::RightButton))
        return;
    press["button"] = isLeft ? "left" : "right";
    if (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier))
        press["with"] = event.modifiers() & Qt::ShiftModifier ? "Shift" : "Ctrl";
    // A double click is a press followed by this event.
    const bool isDouble = event.type() == QEvent::MouseButtonDblClick;
    if (isDouble && m_move.isNull() && m_last == press) {
        m_last["do"] = "double";
        if (isLeft)
            m_last.removeMember("button");
        emit sgnLastReplaced(m_last);
    } else if (!isDouble) {
        record(press);
        m_isHeld = isLeft;
    }
}

/// A press that was followed by moves with the button held is one step with them, which ends when
/// the button is let go, or when anything else is done.
void SessionRecorder::endDrag()
{
    if (!std::exchange(m_isHeld, false) || m_move.isNull())
        return;
    Value drag = RecordedStep::drag(m_last["at"], m_move["at"]);
    if (m_last.isMember("with"))
        drag["with"] = m_last["with"];
    m_move = Value();
    m_last = drag;
    emit sgnLastReplaced(m_last);
}

void SessionRecorder::seeMove(QWidget& widget, const QMouseEvent& event)
{
    m_isReleaseClick = false;
    if (&widget != m_window.videoSurface())
        return;
    const Value move =
        RecordedStep::onPicture("move", event.pos(), m_window.videoSurface()->paneRect(0));
    if (move.isNull())
        return;
    recordSize();
    m_move = move;
}

void SessionRecorder::seeKey(QWidget& widget, const QKeyEvent& event)
{
    m_isReleaseClick = true;
    // Focus that Qt passes on, as its widget was disabled, has the same reason as a tabulator's.
    m_isTabbing = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    if (widget.objectName() == QLatin1String(RowContract::kTitleBar) &&
        RowContract::isFoldKey(event.key()))
        seeFold(widget);
    auto* edit = qobject_cast<QLineEdit*>(&widget);
    if (!m_edited)
        m_changedRow.clear();
    if (edit && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter))
        awaitEnd(*edit, true);
}

// The tabulator reaches rows of other sections, which are then selected and unfolded.
void SessionRecorder::seeTab(QWidget& widget)
{
    const QWidget* panel = RecordedStep::panelAround(widget);
    if (!panel)
        return;
    const bool isTitle = widget.objectName() == QLatin1String(RowContract::kTitleBar);
    if (panel->property(RowContract::kFolded).toBool() && !isTitle)
        record(RecordedStep::fold(panel->objectName(), false));
    else if (!panel->property(RowContract::kSelected).toBool())
        record(RecordedStep::select(panel->objectName()));
}

void SessionRecorder::seeFocusOut(QWidget& widget, Qt::FocusReason reason)
{
    if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        // The window itself takes the focus away as an effect of a step that is written already.
        if (reason == Qt::OtherFocusReason && m_typed == edit)
            m_typed.clear();
        if (reason != Qt::PopupFocusReason)
            awaitEnd(*edit, false);
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        m_isReleaseClick = m_isReleaseClick && !button->isDown();
    }
}

void SessionRecorder::sltTextEdited()
{
    auto* edit = qobject_cast<QLineEdit*>(sender());
    const QWidget* row = RecordedStep::rowAround(*edit);
    if (!row || !RowHand::isKnown(row))
        sayUnrecorded(*edit);
    else
        beginEdit(*edit);
}

void SessionRecorder::beginEdit(QLineEdit& edit)
{
    if (m_edited == &edit)
        return;
    recordEdited();
    m_edited = &edit;
    m_isResumed = m_typed == &edit;
    m_typed.clear();
}

// The row hears of it only after this.
void SessionRecorder::awaitEnd(QLineEdit& edit, bool isReturn)
{
    const QWidget* row = RecordedStep::rowAround(edit);
    if (!row || !RowHand::isKnown(row))
        return;
    if (isReturn || (m_typed == &edit && edit.isModified()))
        beginEdit(edit);
    QTimer::singleShot(0, this, &SessionRecorder::recordSettled);
}

void SessionRecorder::sltRowChanged()
{
    auto* row = qobject_cast<QWidget*>(sender());
    if (!RowHand::isKnown(row))
        sayUnrecorded(*row);
    else if (RowHand::isTyped(row))
        m_changedRow = row;
    else
        record(RecordedStep::set(*row));
}

void SessionRecorder::sltOtherEdited()
{
    const auto* control = qobject_cast<QWidget*>(sender());
    const QWidget* focused = QApplication::focusWidget();
    if (control == focused || control->isAncestorOf(focused))
        sayUnrecorded(*control);
}

void SessionRecorder::sayUnrecorded(const QWidget& control)
{
    const QString name = control.objectName().isEmpty()
                             ? QString::fromLatin1(control.metaObject()->className())
                             : control.objectName();
    const QString text =
        tr("What was changed in \"%1\" cannot be recorded, nor restored after a crash.").arg(name);
    qCWarning(lcRecorder).noquote() << text;
    m_window.statusBar()->showMessage(text);
}

void SessionRecorder::sltKeyUsed()
{
    record(RecordedStep::key(m_rulesWindow->property(RowContract::kUsedKey).toString()));
}

void SessionRecorder::sltButtonReleased()
{
    const auto* button = qobject_cast<QAbstractButton*>(sender());
    if (!button || !m_isReleaseClick || !m_rulesWindow->isAncestorOf(button))
        return;
    const Value step = RecordedStep::button(m_finder, *button);
    if (!step.isNull())
        record(step);
}

void SessionRecorder::watchQuestion(QMessageBox& box)
{
    if (!(box.standardButtons() & QMessageBox::No) || !RecordedStep::isAnswer(m_last))
        return;
    connect(&box, &QDialog::finished, this, [this](int result) {
        if (!RecordedStep::isAnswer(m_last))
            return;
        m_last["answer"] = result == QMessageBox::Yes ? "Yes" : "No";
        emit sgnLastReplaced(m_last);
    });
}

/// The menu tells of it before its actions do.
void SessionRecorder::watchMenu(QMenu& menu)
{
    if (menu.parentWidget() == m_rulesWindow)
        connect(&menu, &QMenu::triggered, this, [this, &menu](const QAction* action) {
            record(RecordedStep::menu(m_finder, menu, *action));
        });
}

void SessionRecorder::sltCheck()
{
    record(RecordedStep::check());
}

void SessionRecorder::sltFinish()
{
    record(RecordedStep::finish());
}

void SessionRecorder::sltLoad()
{
    record(RecordedStep::load(&m_loaded, m_window.options()));
    m_loaded = m_window.options();
    m_pictureAwaited = false;
}

void SessionRecorder::recordSettled()
{
    if (m_edited && !m_edited->isModified())
        recordEdited();
}

// An edit whose text was refused left nothing to do again, but to drop what is written of it.
void SessionRecorder::recordEdited()
{
    const QPointer<QLineEdit> edit = std::exchange(m_edited, nullptr);
    const QWidget* row = edit ? RecordedStep::rowAround(*edit) : nullptr;
    const bool isChanged = row && m_changedRow == row;
    m_changedRow.clear();
    if (row && edit->isModified()) {
        m_typed = edit;
        recordAfterMove(RecordedStep::typed(*row, *edit));
    } else if (isChanged) {
        // What was cut down to the maximum while it was typed is taken over again when it ends.
        const Value set = RecordedStep::set(*row);
        if (!(set == m_last))
            recordAfterMove(set);
    } else if (row && m_isResumed) {
        recordDropped(*row, *edit);
    }
}

/// The text that is written would be taken over when the edit ends; the row shows what it held.
void SessionRecorder::recordDropped(const QWidget& row, const QLineEdit& edit)
{
    if (!isEmptyDropped(edit)) {
        recordAfterMove(RecordedStep::set(row));
        return;
    }
    Value emptied = RecordedStep::typed(row, edit);
    emptied["text"] = "";
    recordAfterMove(emptied);
    recordAfterMove(RecordedStep::finish());
}

void SessionRecorder::record(const Value& step)
{
    recordEdited();
    recordAfterMove(step);
}

void SessionRecorder::recordAfterMove(const Value& step)
{
    endDrag();
    recordSize();
    if (!m_move.isNull())
        append(m_move);
    m_move = Value();
    append(step);
}

void SessionRecorder::recordSize()
{
    if (m_size == m_window.size())
        return;
    endDrag();
    // The pointer was there at the size before.
    if (!m_move.isNull())
        append(m_move);
    m_move = Value();
    m_size = m_window.size();
    append(RecordedStep::size(m_window));
}

void SessionRecorder::append(const Value& step)
{
    const bool needsPicture = RecordedStep::needsPicture(step);
    if (needsPicture && !m_pictureAwaited)
        emit sgnStep(RecordedStep::waitForPicture());
    m_pictureAwaited = m_pictureAwaited || needsPicture;
    emit sgnStep(step);
    m_last = step;
}
