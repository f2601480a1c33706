#pragma once

#include "host/gdiplus/basetypes.h"

#include <QString>
#include <QVarLengthArray>

namespace Gdiplus
{

using TextLines = QVarLengthArray<QString, 1>;

/// The lines of a text, which they refer to where they can: use them while @p text lives. Empty for
/// an empty text. A @p length of -1 means up to the terminating zero.
TextLines textLines(const WCHAR* text, INT length);

} // namespace Gdiplus
