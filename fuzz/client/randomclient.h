#pragma once

#include "fuzz/boxcloser.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>
#include <random>
#include <vector>

class ClientPlace;
class QLineEdit;
class QWidget;
namespace IntelligentRulesUI
{
class CIntelligentRulesUIPlugin;
}
namespace KQPluginAPI
{
class IAbstractWidget;
}

/**
 * A client that does anything with rules windows that a client may do: puts them into tabs, stacks
 * and splitters, hides, reparents, loads, clears, queries and deletes them, and answers what it
 * hears of the focus by messages. Its own edits must get the keys that are typed into them, nothing
 * unseen may have the focus, and a query must change nothing.
 */
class RandomClient : public QObject
{
public:
    explicit RandomClient(unsigned seed);
    ~RandomClient() override;

    void setVerbose(bool verbose) { m_isVerbose = verbose; }
    /// Does @p steps things; false when something did not hold, which report() tells.
    bool play(int steps);
    const QString& report() const { return m_report; }

private:
    struct Rules {
        KQPluginAPI::IAbstractWidget* handle;
        QPointer<QWidget> window;
    };
    struct Step {
        int weight;
        const char* name;
        void (RandomClient::*act)();
    };
    static const std::vector<Step>& steps();

    void requireOrder() const;
    void begin();
    void focusMoved();

    void load();
    void clear();
    void query();
    void turn();
    void showOrHide();
    void reparent();
    void takeOut();
    void deleteWindow();
    void deletePlace();
    void typeIntoOwn();
    void typeAnywhere();
    void enterRow();
    void clickButton();
    void pressPicture();
    void resizePlace();
    void paint();
    void endModule();

    int number(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }
    Rules& rules() { return m_rules[static_cast<std::size_t>(number(int(m_rules.size())))]; }
    ClientPlace& place();
    void send(const Rules& to, int message, const QString& parameters);

    std::mt19937 m_random;
    QTemporaryDir m_folder;
    QStringList m_documents; ///< of a load: template and configuration
    BoxCloser m_boxes;
    std::unique_ptr<IntelligentRulesUI::CIntelligentRulesUIPlugin> m_plugin;
    std::vector<Rules> m_rules;
    std::vector<std::unique_ptr<ClientPlace>> m_places;
    QString m_report;
    bool m_isVerbose = false;
    bool m_isAnswering = false; ///< what it hears of the focus
    bool m_isDeleting = false;
    int m_typed = 0;
    int m_loads = 0;
};
