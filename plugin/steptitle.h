#pragma once

#include <QString>

class RuleData;

namespace IntelligentRulesUI
{

struct EditStep;

/// What steps are called.
namespace StepTitle
{

/// What @p step, a change of @p data that has just been made, is called for the operator.
QString of(const EditStep& step, const RuleData& data);

} // namespace StepTitle

} // namespace IntelligentRulesUI
