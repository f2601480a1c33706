#pragma once

#include "host/kqhostexport.h"

#include <QString>

namespace UICommonMdl
{

/**
 * @p address as it may be shown and logged: user name and password, and whatever follows a
 * question mark, are replaced by "***". A local path comes back unchanged.
 */
KQHOST_EXPORT QString maskedAddress(const QString& address);

} // namespace UICommonMdl
