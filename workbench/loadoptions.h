#pragma once

#include "host/json/fwd.h"

#include <QString>
#include <functional>

struct WorkbenchOptions;

/// The command line's options as members of a session's load step.
namespace LoadOptions
{

/// Overwrites in @p options what @p step names; @p file turns a file member into a path.
void apply(const kql::Json::Value& step,
           const std::function<QString(const kql::Json::Value&)>& file, WorkbenchOptions& options);

} // namespace LoadOptions
