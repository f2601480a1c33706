#pragma once

#include "workbench/messagerecord.h"
#include "workbench/panelfinder.h"
#include "workbench/sessionscript.h"

#include <QList>
#include <QObject>

#include <functional>
#include <optional>

class BoxWatcher;
class QAbstractButton;
class WorkbenchWindow;
struct WorkbenchOptions;

/**
 * Does a recorded session again: each step through the real widgets, with real mouse and key
 * events, and only if an operator could do it. Between steps the event loop runs.
 */
class SessionPlayer : public QObject
{
    Q_OBJECT

public:
    SessionPlayer(WorkbenchWindow& window, SessionScript script, QObject* parent = nullptr);

    void start();
    /// Does one step at once; why it could not be done, or an empty text.
    QString run(const kql::Json::Value& step);

signals:
    /// @p error is empty, or one line with the step that failed and why.
    void sgnFinished(const QString& error);

private:
    using Value = kql::Json::Value;
    /// Does one step; why it could not be done, or an empty text.
    using Action = std::function<QString(SessionPlayer& player, const Value& step)>;
    using SectionAction =
        std::function<QString(SessionPlayer& player, QWidget* panel, const Value& step)>;
    using RowAction = QString (*)(QWidget* row, const Value& step);
    using PictureAction = std::function<QString(QWidget* surface, const QPoint& position)>;

    static Action inSection(const SectionAction& action);
    static Action inRow(RowAction action);
    using ButtonAction = QString (*)(QWidget* surface, const QPoint& position,
                                     Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    static Action onPicture(const PictureAction& action);
    static Action withButton(ButtonAction press);
    static Action onButton(const char* name);
    static Action actionFor(const QString& name);
    /// A position of a step in pixels of the surface; nothing where it is not on the picture.
    std::optional<QPoint> placeOf(const Value& position) const;
    void runNext();

    QString doSize(const Value& step);
    QString doClick(const Value& step);
    QString doKey(const Value& step);
    QString doDrag(const Value& step);
    QAbstractButton* entryButton(QWidget* panel, const Value& step) const;
    QString doPick(QWidget* panel, const Value& step);
    QString doMenu(QWidget* panel, const Value& step);
    QString doHover(const Value& step);
    QString doEnable(QWidget* panel, const Value& step);
    QString doFinish(const Value& step);
    QString doFold(QWidget* panel, const Value& step);
    QString doSelect(QWidget* panel, const Value& step);
    QString doCheck(const Value& step);
    QString doQuery(const Value& step);
    QString doClose(const Value& step);
    QString doLoad(const Value& step);
    QString doScreenshot(const Value& step);
    QString doWait(const Value& step);
    QString doExpect(const Value& step);

    QString file(const Value& name) const;
    void takeOptions(const Value& step, WorkbenchOptions& options) const;

    WorkbenchWindow& m_window;
    SessionScript m_script;
    PanelFinder m_finder;
    BoxWatcher* m_boxes;
    QList<MessageRecord> m_posted; ///< by the module, since the last step that is no expectation
    std::size_t m_next = 0;
};
