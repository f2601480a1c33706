#pragma once

#include "fuzz/day/writtendocument.h"

#include <map>
#include <string>
#include <vector>

class QUndoCommand;
class QUndoStack;

/**
 * Compares what undoing and doing again leads to with what was there before, at each step of the
 * window's history that it has seen: entries and figures with their ids, and the document that a
 * save would write then.
 */
class TimeTravel
{
public:
    /// To be asked after each @p step; throws Fault where something else came back. @p endedEdit
    /// tells that the step may have ended an edit of a row besides.
    void note(const WorkbenchWindow& window, const kql::Json::Value& step, bool endedEdit);
    /// How often something was there to compare with.
    int compared() const { return m_compared; }
    const WrittenDocument& document() const { return m_document; }

private:
    void seeTravel(bool isBack, const std::string& contents);
    void seeEdit(int before, const std::string& contents);
    void forgetFrom(int index);
    void forgetDropped(const QUndoStack& stack);

    WrittenDocument m_document;
    std::map<int, std::string> m_left;    ///< by position, before the next step was taken
    std::map<int, std::string> m_reached; ///< by position, right after the step to it
    std::vector<const QUndoCommand*> m_steps;
    std::string m_now;
    int m_index = 0;
    int m_solid = 0; ///< the last position known at which nothing was being drawn
    int m_compared = 0;
};
