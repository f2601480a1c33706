#pragma once

#include <QString>

struct WorkbenchOptions;

/// The parameter block that loads a channel's rules.
namespace ParameterBlock
{

/// The block's JSON text for @p options, documents read from their files. Empty on failure, with
/// one line in @p error.
QString build(const WorkbenchOptions& options, QString& error);

} // namespace ParameterBlock
