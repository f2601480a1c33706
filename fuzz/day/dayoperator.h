#pragma once

#include "host/json/value.h"
#include "workbench/panelfinder.h"

#include <QPoint>
#include <QRect>
#include <QStringList>
#include <random>

class BaseTabelScene;
class ControlTabel;
class WorkbenchWindow;

/**
 * An operator who does anything at all that the workbench's window lets him do: steps of a session,
 * one after the other, chosen from what is shown. The same seed makes the same choices.
 */
class DayOperator
{
public:
    /// @p configs are what may be loaded, besides nothing; @p window is not owned.
    DayOperator(WorkbenchWindow& window, const QStringList& configs, unsigned seed);

    /// Whether the operator keeps at it: loads nothing else, and leaves nothing.
    void setClosing(bool closing) { m_isClosing = closing; }
    /// The next step; it can be done.
    kql::Json::Value nextStep();
    /// Loads one of the documents, mostly as an operator who may edit everything.
    kql::Json::Value load();

private:
    using Value = kql::Json::Value;
    struct Choice {
        int weight;
        Value (DayOperator::*make)();
    };

    /// Null where there is nothing to choose from, for this and all that follow.
    Value choose(const std::vector<Choice>& choices);
    Value press();
    Value move();
    Value hover();
    Value hoverButton();
    Value doubleClick();
    Value rightClick();
    Value click();
    Value pick();
    Value pickChild();
    Value menu();
    Value enable();
    Value set();
    Value type();
    Value fold();
    Value select();
    Value save();
    Value cancel();
    Value key();
    Value keyOnPicture();
    Value drag();
    Value pressCorner();
    Value corner();
    Value travel();
    Value check();
    Value query();
    Value close();
    Value loadAnew();
    Value size();
    Value wait();
    Value screenshot();

    bool stays() const { return m_isClosing || m_staysFor > 0; }
    int number(int from, int to);
    bool happens(int percent) { return number(1, 100) <= percent; }
    template<class T>
    const T& oneOf(const QList<T>& list)
    {
        return list.at(number(0, list.size() - 1));
    }
    /// The selected section; null when there is none, or it is folded.
    BaseTabelScene* openPanel() const;
    Value onPicture(const char* name);
    QPoint position(const QRect& picture);
    QPoint borderPosition(const QRect& picture);
    Value held(Value step);
    Value pickFrom(bool children);
    /// @p step with what it would find in the clipboard, so that it can be played elsewhere.
    static Value withClip(Value step);
    Value row(const char* name, ControlTabel*& found);
    Value valueFor(const QWidget& row);
    QString text();

    WorkbenchWindow& m_window;
    PanelFinder m_finder;
    QStringList m_configs;
    std::mt19937 m_random;
    QPoint m_last; ///< where the picture was pressed last, 0..8192
    bool m_isGoingBack = false;
    bool m_isClosing = false;
    int m_staysFor = 0; ///< actions until something else may be loaded
};
