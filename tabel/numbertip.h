#pragma once

#include <QCoreApplication>
#include <QString>

class RuleProtocolItem;

/// What the tool tip of a row for numbers says.
class NumberTip
{
    Q_DECLARE_TR_FUNCTIONS(NumberTip)

public:
    /// Kind, range and unit of a number.
    static QString of(const RuleProtocolItem& item);
    /// Why a row with the tool tip @p tip is marked.
    static QString refusal(const QString& tip);

private:
    static QString kindOf(const RuleProtocolItem& item);
};
