#pragma once

#include "host/json/fwd.h"

#include <QCoreApplication>
#include <QString>

class BaseTabelScene;
class RuleParser;

namespace IntelligentRulesUI
{

/**
 * Copies entries through the clipboard, from section to section of one kind, and within one. Why
 * something cannot be done it tells in a sentence, or an empty text.
 */
class EntryTransfer
{
    Q_DECLARE_TR_FUNCTIONS(EntryTransfer)

public:
    /// Whose sections they are; not owned, null while nothing is loaded.
    void setParser(const RuleParser* parser) { m_parser = parser; }

    /// Whether the clipboard has an entry, of whatever section.
    static bool hasCopied();
    QString whyNotCopied(const BaseTabelScene& panel, int dataId) const;
    QString whyNotDuplicated(const BaseTabelScene& panel, int dataId) const;
    QString whyNotPasted(const BaseTabelScene& panel) const;

    /// The following are to be called where there is no reason not to.
    QString copy(const BaseTabelScene& panel, int dataId) const;
    /// The id of the new last entry, which is not shown yet; 0 when there is too much in it.
    int duplicate(const BaseTabelScene& panel, int dataId) const;
    int paste(const BaseTabelScene& panel) const;

private:
    static QString whyNotAdded(const BaseTabelScene& panel);
    kql::Json::Value clipOf(const BaseTabelScene& panel, int dataId) const;
    int add(const BaseTabelScene& panel, const kql::Json::Value& clip) const;

    const RuleParser* m_parser = nullptr;
};

} // namespace IntelligentRulesUI
