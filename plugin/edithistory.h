#pragma once

#include "Protocol/scenestate.h"
#include "plugin/editstep.h"

#include <QList>
#include <QObject>
#include <QUndoStack>
#include <vector>

class BaseTabelScene;

namespace IntelligentRulesUI
{

/**
 * What the operator has changed since the load, step by step, to be taken back and done again.
 *
 * It hears that something may have changed, and finds out itself what: it compares entries and
 * figures with those that it knew last, so no change can be forgotten. Points are steps while
 * their figure is drawn; what is finished becomes one step with what began it.
 */
class EditHistory : public QObject
{
    Q_OBJECT

public:
    explicit EditHistory(QObject* parent = nullptr);
    ~EditHistory() override;

    /// Forgets all steps; what the panels show now is where the next ones start. The panels are
    /// not owned, and are let go of by an empty list.
    void start(const QList<BaseTabelScene*>& panels);
    /// Looks for what the operator has changed. @p row is the key of the row that was edited,
    /// empty for anything else; edits of one row, or of one @p series, become one step while they
    /// come one after the other. @p title is what the step is called, where it does not follow from
    /// what has changed.
    void note(const QString& row, const QString& series = {}, const QString& title = {});
    /// What is edited now is what was saved.
    void setSaved();
    /// Whether the next edit could become one step with the last.
    bool mayMerge() const { return m_mayMerge; }
    void endMerging() { m_mayMerge = false; }

    void undo();
    void redo();
    /// Puts a scene back to what it was before the drawing in hand began, as a step of its own;
    /// false when nothing is in hand or its figure has points.
    bool leaveDrawing(BaseTabelScene& panel);

    const QUndoStack& stack() const { return m_stack; }

signals:
    /// A step was taken back or done again in that section.
    void sgnRestored(BaseTabelScene* panel);

private:
    class Command;

    void noteScene(int scene, const QString& row, const QString& series, const QString& title);
    void push(EditStep step);
    /// Makes one step of the points of a figure that is finished, and of an entry's figures.
    void fold(int scene, int dataId, int itemId);
    std::vector<EditStep> takeFrom(int index);
    std::vector<int> drawingSteps(int scene) const;
    int beginOf(int scene, int dataId) const;
    int firstPointOf(int scene, int itemId) const;
    void show(int scene, const SceneState& state, int dataId);
    const EditStep& step(int index) const;

    QUndoStack m_stack;
    QList<BaseTabelScene*> m_panels; ///< not owned
    std::vector<SceneState> m_known; ///< of each panel
    bool m_isQuiet = false;          ///< while steps move within the stack
    bool m_mayMerge = false;
    bool m_mergesPoints = false; ///< while a point of a figure with very many is pushed
};

} // namespace IntelligentRulesUI
