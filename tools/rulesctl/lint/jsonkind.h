#pragma once

#include "Protocol/templatemembers.h"
#include "host/json/value.h"

#include <QStringList>

/// Kinds of JSON, as TemplateMember counts them.
namespace JsonKind
{

/// Whether @p value is of one of @p kinds.
bool isAmong(const kql::Json::Value& value, unsigned kinds);
/// The names of @p kinds as schemas have them.
QStringList names(unsigned kinds);

} // namespace JsonKind
