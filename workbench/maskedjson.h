#pragma once

#include <QString>

/// JSON texts as they may be shown and logged.
namespace MaskedJson
{

/**
 * @p json with every address in it masked as host/video/maskedaddress.h does. A text without
 * addresses comes back as it is.
 */
QString text(const QString& json);

} // namespace MaskedJson
