#pragma once

#include "host/json/value.h"
#include "workbench/panelfinder.h"
#include "workbench/workbenchoptions.h"

#include <QObject>
#include <QPointer>
#include <QSize>

class QAbstractButton;
class QKeyEvent;
class QLineEdit;
class QMenu;
class QMessageBox;
class QMouseEvent;
class WorkbenchWindow;

/**
 * Writes what the operator does in a rules window as the steps of a session, so that replaying it
 * at the same window size gives the same result. It only watches: events go on as they came.
 *
 * A button's step is written before the button acts, an attribute row's when the row has taken
 * over what was typed or clicked. What cannot be written is said in the window's status line. Of
 * pointer movements only the last one before another step counts.
 */
class SessionRecorder : public QObject
{
    Q_OBJECT

public:
    /// @p window has its rules window already; it is not owned.
    explicit SessionRecorder(WorkbenchWindow& window, QObject* parent = nullptr);

    /// Starts recording into @p path, which is replaced; false with one line in @p error. What
    /// cannot be written later is told by sgnFailed().
    bool open(const QString& path, QString& error);
    /// Starts recording for those who connected to the signals.
    void start();

signals:
    void sgnStep(const kql::Json::Value& step);
    /// @p step stands in the place of the last one.
    void sgnLastReplaced(const kql::Json::Value& step);
    /// From here on nothing is recorded; @p line says why.
    void sgnFailed(const QString& line);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void sltKeyUsed();
    void sltButtonReleased();
    void sltTextEdited();
    void sltRowChanged();
    void sltOtherEdited();
    void sltCheck();
    void sltFinish();
    void sltLoad();

private:
    using Value = kql::Json::Value;

    void watch(QWidget* widget);
    void watchMenu(QMenu& menu);
    void watchQuestion(QMessageBox& box);
    void see(QWidget& widget, QEvent& event);
    void seePress(QWidget& widget, const QMouseEvent& event);
    void seeMove(QWidget& widget, const QMouseEvent& event);
    void seeKey(QWidget& widget, const QKeyEvent& event);
    void seeTab(QWidget& widget);
    void seeFocusOut(QWidget& widget, Qt::FocusReason reason);
    void pressPicture(const QMouseEvent& event);
    void seeFold(const QWidget& titleBar);
    void endDrag();
    void beginEdit(QLineEdit& edit);
    void awaitEnd(QLineEdit& edit, bool isReturn);
    /// Tells the operator of an edit that no step can be made of.
    void sayUnrecorded(const QWidget& control);

    /// Writes what came before and is not written yet, then @p step.
    void record(const Value& step);
    /// Writes an edit that is finished, as the row shows it now.
    void recordSettled();
    void recordEdited();
    void recordDropped(const QWidget& row, const QLineEdit& edit);
    void recordAfterMove(const Value& step);
    void recordSize();
    void append(const Value& step);

    WorkbenchWindow& m_window;
    QPointer<QWidget> m_rulesWindow; ///< not owned; goes before the recorder
    PanelFinder m_finder;
    Value m_last;          ///< the step written last
    bool m_isHeld = false; ///< the button of the press that is the last step
    Value m_move;          ///< the pointer's last movement; null when it is written
    QSize m_size;          ///< of the window, as written
    WorkbenchOptions m_loaded;
    QPointer<QLineEdit> m_edited;   ///< typed into or ended, and not written yet
    QPointer<QLineEdit> m_typed;    ///< written as unfinished
    QPointer<QWidget> m_changedRow; ///< took over a value in the edit that is not written yet
    bool m_isResumed = false;       ///< m_edited was written as unfinished before
    bool m_pictureAwaited = false;
    bool m_isTabbing = false;
    bool m_isReleaseClick = true; ///< a button let go now was clicked, not just left
};
