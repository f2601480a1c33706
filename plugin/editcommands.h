#pragma once

#include "plugin/edithistory.h"
#include "plugin/editkeys.h"

#include <QObject>

namespace IntelligentRulesUI
{

/**
 * What an operator does to take back, finish and leave: with keys and with the buttons beside
 * Save. It acts on the section that is selected, and knows which keys have something to do.
 */
class EditCommands : public QObject
{
    Q_OBJECT

public:
    explicit EditCommands(QObject* parent = nullptr) : QObject(parent), m_history(this) {}

    EditHistory& history() { return m_history; }
    /// The section whose canvas is seen; not owned, null for none.
    void setPanel(BaseTabelScene* panel)
    {
        m_panel = panel;
        m_history.endMerging();
    }

    /// Whether the client must not get the key now.
    bool claims(EditKey key) const;
    /// Whether the key would change something now.
    bool isUseful(EditKey key) const;
    /// Does what the key is for.
    void use(EditKey key);

private:
    bool isDrawing() const;
    int pointsInHand() const;

    EditHistory m_history;
    BaseTabelScene* m_panel = nullptr;
};

} // namespace IntelligentRulesUI
