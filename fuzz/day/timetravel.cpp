#include "fuzz/day/timetravel.h"

#include "draw/drawscene.h"
#include "fuzz/day/dayorder.h"
#include "fuzz/fault.h"
#include "host/json/value.h"
#include "plugin/edithistory.h"
#include "scene/basetabelscene.h"
#include "workbench/workbenchwindow.h"

#include <algorithm>

using IntelligentRulesUI::EditHistory;

namespace
{

bool isStep(const kql::Json::Value& step, const char* key, const char* button)
{
    return step["keys"].asString() == QLatin1String(key) ||
           step["object"].asString() == QLatin1String(button);
}

} // namespace

void TimeTravel::note(const WorkbenchWindow& window, const kql::Json::Value& step, bool endedEdit)
{
    const auto* history = window.rulesWindow()->findChild<EditHistory*>();
    const std::string contents = DayOrder::contents(window);
    const int index = history->stack().index();
    const bool isBack = isStep(step, "Ctrl+Z", "btnUndo") && index < m_index;
    const bool isForth = isStep(step, "Ctrl+Y", "btnRedo") && index > m_index;
    const bool isFull = history->stack().count() == history->stack().undoLimit();
    if (history->stack().count() == 0 || isFull || endedEdit)
        forgetFrom(0);
    const int before = m_index;
    m_index = index;
    if ((isBack || isForth) && qAbs(index - before) == 1)
        seeTravel(isBack, contents);
    else if (!endedEdit)
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
