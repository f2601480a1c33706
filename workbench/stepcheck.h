#pragma once

#include "host/json/fwd.h"

class QString;

/// What the steps of a session must have, so that none does something that nobody wrote.
namespace StepCheck
{

/// Which member of @p step is missing or not of its kind, in one line; empty when all are right.
QString fault(const kql::Json::Value& step);

} // namespace StepCheck
