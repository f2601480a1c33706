#pragma once

#include "host/api/kqhostexport.h"

#include <QString>

namespace UICommonMdl
{

/**
 * @p address, or a text that holds one, as it may be shown and logged. "***" stands for user name
 * and password, whatever they are given as: what is before the last "@", what follows "?", and "#"
 * behind a scheme, what follows "user=" and "password=" or their likes, and what follows a ":"
 * where a port should be. A local path comes back unchanged unless it looks like one of these.
 */
KQHOST_EXPORT QString maskedAddress(const QString& address);

/**
 * @p address without all that maskedAddress() hides, as it may be kept. Empty when that cannot be
 * told from the rest.
 */
KQHOST_EXPORT QString addressWithoutLogin(const QString& address);

} // namespace UICommonMdl
