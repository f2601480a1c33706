#pragma once

#include "Protocol/ruletypes.h"

class QString;

/// How templates and configurations spell the enumerations: exactly so, in upper and lower case as
/// it stands. Anything else is None.
namespace Spelling
{

FacadeType toFacadeType(const QString& text);
/// Kind of figure that @p facade draws; None for control rows and unknown facades.
BaseDrawType toDrawType(FacadeType facade);
ValueType toValueType(const QString& text);
BaseDrawDirectionType toDirectionType(const QString& text);
CheckRuleOperatorType toOperatorType(const QString& text);

} // namespace Spelling
