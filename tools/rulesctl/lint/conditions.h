#pragma once

#include <QHash>
#include <QString>
#include <map>
#include <vector>

class DataTemplate;
class RuleProtocolItem;

/**
 * What has to be so for the attributes of a template to apply. Values are compared in the texts
 * that the module compares, as numbers that stand for them: lists may be as long as documents are,
 * and each is compared with many.
 */
class Conditions
{
public:
    /// Numbers of texts, in their order.
    using Values = std::vector<int>;
    /// One controller that has to have one of these values.
    struct Wanted {
        const RuleProtocolItem* controller;
        const Values* values; ///< not owned; as long as the conditions are there
    };
    /// What an attribute needs, and what controls it, all the way up; sorted by controller.
    using Chain = std::vector<Wanted>;

    /// @p dataTemplate is not owned and must outlive this.
    explicit Conditions(const DataTemplate& dataTemplate) : m_template(dataTemplate) {}

    /// What the condition of @p item names; null for none, and where it lists no value: it does not
    /// count then.
    const RuleProtocolItem* controllerOf(const RuleProtocolItem& item);
    Chain of(const RuleProtocolItem& item) { return chainOf(item, &Own::values); }
    /// Whether the rows of all controllers of @p item can have values with which it applies.
    bool canBeMet(const RuleProtocolItem& item);

    /// Whether @p one and @p other are never met together: because of a controller that has one
    /// value at a time, which radio buttons, a switch or a number say, and no value in common.
    static bool exclude(const Chain& one, const Chain& other);

private:
    struct Own {
        const RuleProtocolItem* controller = nullptr;
        Values values;
        Values possible; ///< those of them that the controller can have
    };

    const Own& ownOf(const RuleProtocolItem& item);
    Chain chainOf(const RuleProtocolItem& item, Values Own::*which);
    Values numbersOf(const QStringList& texts);
    const Values& choicesOf(const RuleProtocolItem& controller);
    Values possibleOf(const RuleProtocolItem& controller, const QStringList& texts,
                      const Values& values);

    const DataTemplate& m_template;
    QHash<QString, int> m_numbers;
    std::map<const RuleProtocolItem*, Own> m_own;
    std::map<const RuleProtocolItem*, Values> m_choices;
};
