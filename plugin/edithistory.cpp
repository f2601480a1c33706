#include "plugin/edithistory.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "plugin/steptitle.h"
#include "scene/basetabelscene.h"

#include <QPointer>
#include <QScopedValueRollback>
#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace IntelligentRulesUI
{

namespace
{

using Kind = SceneChange::Kind;

constexpr int kMostSteps = 200;
/// Points of one figure that are steps of their own; more would push out what was done before.
constexpr int kMostPoints = 100;

bool isOwn(const EditStep& step, int scene, int dataId)
{
    return step.scene == scene && step.change.dataId == dataId &&
           step.change.kind != Kind::Attribute;
}

bool changesEntry(const EditStep& step, int dataId)
{
    const SceneState::Entry before = step.before.entry(dataId);
    const SceneState::Entry after = step.after.entry(dataId);
    return before && after && !(*before == *after);
}

/// What was edited in rows meanwhile stays steps of its own, done after the drawing. Where what
/// they changed cannot be told from it, they are part of it.
void putAfter(EditStep& drawing, std::vector<EditStep>& others)
{
    const SceneState last = drawing.after;
    const auto isMine = [&drawing](const EditStep& step) { return step.scene == drawing.scene; };
    const auto lastMine = std::find_if(others.rbegin(), others.rend(), isMine);
    if (lastMine == others.rend())
        return;
    const int entry = lastMine->change.dataId;
    const bool isWhole = last.withEntry(lastMine->after.entry(entry)).isSameAs(last);
    // A row that describes the figure alone has changed nothing else.
    const bool areValues = std::all_of(others.begin(), others.end(), [&](const EditStep& step) {
        return !isMine(step) || (step.change.dataId == entry && changesEntry(step, entry));
    });
    if (!isWhole || !areValues) {
        others.erase(std::remove_if(others.begin(), others.end(), isMine), others.end());
        return;
    }
    bool isFirst = true;
    for (EditStep& other : others) {
        if (other.scene != drawing.scene)
            continue;
        const int dataId = other.change.dataId;
        const SceneState before = last.withEntry(other.before.entry(dataId));
        if (std::exchange(isFirst, false))
            drawing.after = before;
        other.before = before;
        other.after = last.withEntry(other.after.entry(dataId));
    }
}

} // namespace

class EditHistory::Command : public QUndoCommand
{
public:
    Command(EditHistory& history, EditStep step)
        : QUndoCommand(step.title), m_history(history), m_step(std::move(step))
    {
    }

    const EditStep& step() const { return m_step; }

    int id() const override { return static_cast<int>(m_step.change.kind); }

    bool mergeWith(const QUndoCommand* other) override
    {
        const EditStep& next = static_cast<const Command*>(other)->m_step;
        if (m_step.scene != next.scene || m_step.change.dataId != next.change.dataId ||
            m_step.change.itemId != next.change.itemId)
            return false;
        const bool isSameSeries =
            m_history.m_mayMerge && !m_step.series.isEmpty() && m_step.series == next.series;
        if (!isSameSeries && !m_history.m_mergesPoints)
            return false;
        m_step.after = next.after;
        setObsolete(m_step.before.isSameAs(m_step.after));
        return true;
    }

private:
    EditHistory& m_history;
    EditStep m_step;
};

EditHistory::EditHistory(QObject* parent) : QObject(parent)
{
    m_stack.setUndoLimit(kMostSteps);
}

EditHistory::~EditHistory() = default;

void EditHistory::start(const QList<BaseTabelScene*>& panels)
{
    m_panels = panels;
    m_known.clear();
    for (const BaseTabelScene* panel : panels)
        m_known.push_back(SceneState::of(*panel->ruleData(), {}));
    m_mayMerge = false;
    m_stack.clear();
}

void EditHistory::note(const QString& row, const QString& series, const QString& title)
{
    if (m_isQuiet)
        return;
    for (int scene = 0; scene < m_panels.size(); ++scene)
        noteScene(scene, row, series.isEmpty() ? row : series, title);
}

void EditHistory::noteScene(int scene, const QString& row, const QString& series,
                            const QString& title)
{
    SceneState& known = m_known[static_cast<std::size_t>(scene)];
    EditStep step{
        scene, {}, row, series, {}, known, SceneState::of(*m_panels[scene]->ruleData(), known)};
    known = step.after;
    if (step.before.selectedDataId() != step.after.selectedDataId() ||
        step.before.selectedItemId() != step.after.selectedItemId())
        m_mayMerge = false;
    step.change = SceneChange::between(step.before, step.after);
    // A row may turn the figure that it describes.
    if (step.change.kind != Kind::None && !row.isEmpty())
        step.change = {Kind::Attribute,
                       step.change.kind == Kind::Attribute ? step.change.dataId
                                                           : step.after.selectedDataId(),
                       0};
    if (step.change.kind == Kind::None || step.change.kind == Kind::Picked)
        return;
    step.title = title.isEmpty() ? StepTitle::of(step, *m_panels[scene]->ruleData()) : title;
    const SceneChange change = step.change;
    const int drawn = m_stack.index() - firstPointOf(scene, change.itemId);
    {
        const QScopedValueRollback<bool> points(m_mergesPoints,
                                                change.kind == Kind::Drawn && drawn >= kMostPoints);
        push(std::move(step));
    }
    const FigureState* const figure = known.figure(change.itemId);
    if (change.kind == Kind::Drawn && figure && figure->figure.isFinished())
        fold(scene, change.dataId, change.itemId);
}

void EditHistory::push(EditStep step)
{
    const QScopedValueRollback<bool> quiet(m_isQuiet, true);
    m_stack.push(new Command(*this, std::move(step)));
    m_mayMerge = true;
}

void EditHistory::fold(int scene, int dataId, int itemId)
{
    const bool isLast = !m_known[static_cast<std::size_t>(scene)].inHand();
    const int begin = isLast ? beginOf(scene, dataId) : -1;
    std::vector<EditStep> steps = takeFrom(begin >= 0 ? begin : firstPointOf(scene, itemId));
    const auto others =
        std::stable_partition(steps.begin(), steps.end(),
                              [&](const EditStep& step) { return isOwn(step, scene, dataId); });
    std::vector<EditStep> later(others, steps.end());
    EditStep drawing = steps.front();
    drawing.after = m_known[static_cast<std::size_t>(scene)];
    if (drawing.change.kind == Kind::Drawn)
        drawing.title = tr("Draw %1").arg(drawing.after.figure(itemId)->figure.label());
    drawing.change = {Kind::Other, dataId, 0};
    putAfter(drawing, later);
    m_mayMerge = false;
    push(std::move(drawing));
    for (EditStep& step : later) {
        m_mayMerge = false;
        push(std::move(step));
    }
    m_mayMerge = false;
}

std::vector<EditStep> EditHistory::takeFrom(int index)
{
    const QScopedValueRollback<bool> quiet(m_isQuiet, true);
    std::vector<EditStep> steps;
    for (int i = index; i < m_stack.index(); ++i)
        steps.push_back(step(i));
    while (m_stack.index() > index)
        m_stack.undo();
    return steps;
}

/// Positions of a scene's steps while something of it was in hand, the last one first. That may
/// have finished it.
std::vector<int> EditHistory::drawingSteps(int scene) const
{
    std::vector<int> steps;
    for (int i = m_stack.index() - 1; i >= 0; --i) {
        if (step(i).scene != scene)
            continue;
        if (i < m_stack.index() - 1 && !step(i).after.inHand())
            break;
        steps.push_back(i);
    }
    return steps;
}

/// Position of the step that began what is being drawn, from which on something was in hand; -1
/// when the entry was only picked.
int EditHistory::beginOf(int scene, int dataId) const
{
    for (const int i : drawingSteps(scene)) {
        if (step(i).change.kind == Kind::Begun && step(i).change.dataId == dataId)
            return i;
    }
    return -1;
}

int EditHistory::firstPointOf(int scene, int itemId) const
{
    int first = m_stack.index() - 1;
    for (const int i : drawingSteps(scene)) {
        if (step(i).change.kind == Kind::Drawn && step(i).change.itemId == itemId)
            first = i;
    }
    return first;
}

const EditStep& EditHistory::step(int index) const
{
    return static_cast<const Command*>(m_stack.command(index))->step();
}

void EditHistory::setSaved()
{
    m_mayMerge = false;
    m_stack.setClean();
}

void EditHistory::undo()
{
    if (!m_stack.canUndo())
        return;
    const EditStep undone = step(m_stack.index() - 1);
    {
        const QScopedValueRollback<bool> quiet(m_isQuiet, true);
        m_stack.undo();
    }
    m_mayMerge = false;
    show(undone.scene, undone.before, undone.change.dataId);
}

void EditHistory::redo()
{
    if (!m_stack.canRedo())
        return;
    const EditStep redone = step(m_stack.index());
    {
        const QScopedValueRollback<bool> quiet(m_isQuiet, true);
        m_stack.redo();
    }
    m_mayMerge = false;
    show(redone.scene, redone.after, redone.change.dataId);
}

void EditHistory::show(int scene, const SceneState& state, int dataId)
{
    const QPointer<EditHistory> self(this);
    const QPointer<BaseTabelScene> panel = m_panels[scene];
    m_isQuiet = true;
    panel->restore(state, dataId);
    // The host may have loaded anew, or deleted the window.
    if (!self)
        return;
    m_isQuiet = false;
    if (!panel || !m_panels.contains(panel))
        return;
    m_known[static_cast<std::size_t>(scene)] = SceneState::of(*panel->ruleData(), state);
    emit sgnRestored(panel);
}

bool EditHistory::leaveDrawing(BaseTabelScene& panel)
{
    const int scene = m_panels.indexOf(&panel);
    if (scene < 0)
        return false;
    const SceneState now = m_known[static_cast<std::size_t>(scene)];
    const FigureState* const inHand = now.inHand();
    if (!inHand || !inHand->isEmpty())
        return false;
    const int dataId = inHand->dataId;
    SceneState left = now.withoutFigure(inHand->itemId);
    const int begin = beginOf(scene, dataId);
    if (begin >= 0) {
        const EditStep& begun = step(begin);
        const bool isFirst = begun.change.itemId == inHand->itemId;
        if (isFirst || !begun.before.entry(dataId))
            left = begun.before.withEntry(now.entry(dataId)).withNothingSelected();
    }
    const QPointer<EditHistory> self(this);
    const QPointer<BaseTabelScene> guard(&panel);
    show(scene, left, dataId);
    if (!self || !guard || !m_panels.contains(guard))
        return true;
    EditStep step{scene,
                  {Kind::Other, dataId, 0},
                  {},
                  {},
                  tr("Leave drawing"),
                  now,
                  m_known[static_cast<std::size_t>(scene)]};
    push(std::move(step));
    m_mayMerge = false;
    return true;
}

} // namespace IntelligentRulesUI
