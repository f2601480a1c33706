#pragma once

class QString;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// What the steps of a session must have, so that none does something that nobody wrote.
namespace StepCheck
{

/// Which member of @p step is missing or not of its kind, in one line; empty when all are right.
QString fault(const kql::Json::Value& step);

} // namespace StepCheck
