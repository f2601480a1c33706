#pragma once

#include <QStringList>
#include <vector>

class DataTemplate;
class RuleProtocolItem;
struct ValidCondition;

/// What has to be so for an attribute to apply, in the texts that the module compares.
namespace Conditions
{

/// One controller that has to have one of these values.
struct Wanted {
    const RuleProtocolItem* controller;
    QStringList values;
};

/// The attribute that @p condition names; null for none, and where it lists no value: it does not
/// count then.
const RuleProtocolItem* controllerOf(const DataTemplate& dataTemplate,
                                     const ValidCondition& condition);

/// The conditions of @p item and of what controls it, all the way up.
std::vector<Wanted> of(const DataTemplate& dataTemplate, const RuleProtocolItem& item);

/// Whether @p controller has one value at a time, which a row of choices, a switch or a number
/// says.
bool hasOneValue(const RuleProtocolItem& controller);

/// Those of @p wanted that @p controller's row can have.
QStringList possible(const RuleProtocolItem& controller, const QStringList& wanted);

/// Whether @p one and @p other, as of() gives them, are never met together.
bool exclude(const std::vector<Wanted>& one, const std::vector<Wanted>& other);

} // namespace Conditions
