#include "fuzz/day/timetravel.h"

#include "draw/drawscene.h"
#include "fuzz/day/dayorder.h"
#include "fuzz/fault.h"
#include "host/json/value.h"
#include "plugin/edithistory.h"
#include "scene/basetabelscene.h"
#include "workbench/workbenchwindow.h"

#include <QUndoStack>

#include <algorithm>
#include <utility>

using IntelligentRulesUI::EditHistory;

namespace
{

bool isStep(const kql::Json::Value& step, const char* key, const char* button)
{
    return step["keys"].asString() == QLatin1String(key) ||
           (button && step["object"].asString() == QLatin1String(button));
}

/// Positions that are @p dropped fewer now.
void shift(std::map<int, std::string>& known, int dropped)
{
    std::map<int, std::string> moved;
    for (auto& [index, contents] : known) {
        if (index >= dropped)
            moved[index - dropped] = std::move(contents);
    }
    known = std::move(moved);
}

} // namespace

void TimeTravel::note(const WorkbenchWindow& window, const kql::Json::Value& step, bool endedEdit)
{
    // Restored work was loaded before the day began.
    if (step["do"].asString() == QLatin1String("load") || !m_document.isLoaded())
        m_document.load(window);
    const QUndoStack& stack = window.rulesWindow()->findChild<EditHistory*>()->stack();
    const std::string contents =
        DayOrder::contents(window) + DayOrder::ids(window) + m_document.text(window);
    forgetDropped(stack);
    const int before = m_index;
    m_index = stack.index();
    const bool isBack = isStep(step, "Ctrl+Z", "btnUndo") && m_index < before;
    const bool isForth =
        (isStep(step, "Ctrl+Y", "btnRedo") || isStep(step, "Ctrl+Shift+Z", nullptr)) &&
        m_index > before;
    if (stack.count() == 0)
        forgetFrom(0);
    else if (endedEdit)
        forgetFrom(std::min({before, m_index, m_solid + 1}));
    else if ((isBack || isForth) && qAbs(m_index - before) == 1)
        seeTravel(isBack, contents);
    else
        seeEdit(before, contents);
    // What is in hand after a step back may have been begun long before.
    if (!DayOrder::isDrawing(window))
        m_solid = m_index;
    else if (isBack || isForth)
        m_solid = -1;
    m_now = contents;
}

void TimeTravel::seeTravel(bool isBack, const std::string& contents)
{
    const std::map<int, std::string>& known = isBack ? m_left : m_reached;
    const auto there = known.find(m_index);
    m_compared += there == known.end() ? 0 : 1;
    Fuzz::require(there == known.end() || there->second == contents,
                  (isBack ? "undone, " : "done again, ") + contents + "\nis there instead of\n" +
                      (there == known.end() ? std::string() : there->second));
}

void TimeTravel::seeEdit(int before, const std::string& contents)
{
    if (m_index == before + 1) {
        forgetFrom(m_index);
        if (!m_now.empty())
            m_left[before] = m_now;
        m_reached[m_index] = contents;
    } else if (contents != m_now || m_index != before) {
        // Edits of one row became one step, or those of a drawing did.
        forgetFrom(m_solid + 1);
        m_reached.erase(m_index);
    }
}

void TimeTravel::forgetFrom(int index)
{
    m_left.erase(m_left.lower_bound(index), m_left.end());
    m_reached.erase(m_reached.lower_bound(index), m_reached.end());
}

/// A full stack drops its first steps for new ones. In one that was not full, a step at the address
/// of an earlier one is another step.
void TimeTravel::forgetDropped(const QUndoStack& stack)
{
    std::vector<const QUndoCommand*> steps;
    for (int i = 0; i < stack.count(); ++i)
        steps.push_back(stack.command(i));
    const bool wasFull = static_cast<int>(m_steps.size()) >= stack.undoLimit();
    const auto end = wasFull || m_steps.empty() ? m_steps.end() : m_steps.begin() + 1;
    auto first = steps.empty() ? m_steps.begin() : std::find(m_steps.begin(), end, steps.front());
    first = first == end ? m_steps.end() : first;
    if (first == m_steps.end())
        forgetFrom(0);
    const auto dropped = first == m_steps.end() ? 0 : static_cast<int>(first - m_steps.begin());
    m_steps = std::move(steps);
    if (dropped == 0)
        return;
    shift(m_left, dropped);
    shift(m_reached, dropped);
    m_index -= dropped;
    m_solid = std::max(m_solid - dropped, -1);
}
