#pragma once

#include "Protocol/checkfault.h"

#include <QCoreApplication>
#include <QList>
#include <QPointer>
#include <optional>

class BaseTabelScene;

namespace IntelligentRulesUI
{

/**
 * What stands against a save, in the order in which an operator is told, and what of it is shown:
 * the fault of the last refused save stays marked in its section until it is corrected.
 */
class SaveCheck
{
    Q_DECLARE_TR_FUNCTIONS(IntelligentRulesUI::SaveCheck)

public:
    struct Refusal {
        QPointer<BaseTabelScene> panel;
        CheckFault fault;
    };

    /// Nothing when the sections may be saved.
    static std::optional<Refusal> refusal(const QList<BaseTabelScene*>& panels);
    /// The same of a window in which rules are only selected.
    static std::optional<Refusal> selectionRefusal(const QList<BaseTabelScene*>& panels);

    /// Marks @p refusal, and no other any more.
    void mark(const Refusal& refusal);
    /// Looks what is left of it after something was changed or shown anew.
    void refresh();
    void forget() { m_shown = {}; }

private:
    Refusal m_shown; ///< without a panel: none
};

} // namespace IntelligentRulesUI
