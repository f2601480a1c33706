#pragma once

#include "fuzz/day/dayoperator.h"
#include "fuzz/day/timetravel.h"
#include "workbench/sessionplayer.h"

#include <QString>
#include <QStringList>
#include <map>
#include <memory>
#include <string>
#include <vector>

class Autosave;
class WorkbenchWindow;
namespace IntelligentRulesUI
{
class CIntelligentRulesUIPlugin;
}

/// A long day of one operator on one example, with everything checked after each of his actions.
class SimulatedDay
{
public:
    /// @p example is a folder with a template and configurations for it, @p folder one for files of
    /// this day, @p source the address of the picture to work on; empty: a still one, so that the
    /// same seed does the same again.
    SimulatedDay(const QString& example, unsigned seed, const QString& folder,
                 const QString& source = {});
    ~SimulatedDay();

    /// Plays @p actions, then on until what is shown could be saved; false when something did not
    /// hold. report() says what, and what was done since the last load, as a session.
    bool play(int actions);
    /// Restores what another process on the same folder had in work when it was killed, which must
    /// look as it did there, plays @p actions and some more until work is kept, and waits to be
    /// killed. Returns when something did not hold.
    void playUntilKilled(int actions);
    const QString& report() const { return m_report; }

private:
    using Value = kql::Json::Value;

    void restore();
    void leaveBehind();
    bool canBeKilled() const;
    std::string look() const;
    QString file(const char* name) const;
    QString respelled(const QString& example) const;
    void writeFile(const char* name, const Value& document) const;
    void act();
    void act(const Value& step);
    void remember(const Value& step);
    void requireUnchanged(const Value& step, const std::string& before) const;
    void requireRoom(const std::map<int, int>& before) const;
    std::map<int, int> entryCounts() const;
    void takeMessages();
    void saveAtLast();
    bool canBeSaved() const;
    void readBack();
    QString summary(qint64 milliseconds) const;
    QString fault(const std::string& what) const;

    QString m_example;
    unsigned m_seed;
    QString m_folder;
    std::unique_ptr<IntelligentRulesUI::CIntelligentRulesUIPlugin> m_plugin;
    std::unique_ptr<WorkbenchWindow> m_window;
    std::unique_ptr<SessionPlayer> m_player;
    std::unique_ptr<DayOperator> m_operator;
    std::unique_ptr<Autosave> m_autosave; ///< of a day that is to be killed
    QString m_restored;                   ///< a session, before m_sinceLoad
    bool m_wasRestored = false;
    std::string m_loaded; ///< what was there after the load
    std::vector<Value> m_sinceLoad;
    TimeTravel m_travel;
    QString m_saved; ///< the last result that was sent to be saved
    QStringList m_posted;
    QString m_report;
    int m_actions = 0;
    int m_loads = 0;
    int m_saves = 0;
    int m_drawingReplies = 0;
};
