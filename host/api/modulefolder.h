#pragma once

#include "host/api/kqhostexport.h"

#include <QString>

namespace UICommonMdl
{

/**
 * Where the host's own plug-ins lie, with their skins and translations: in the folder
 * "intelligentrules" beside the host library where it is installed, else beside the library itself,
 * as in a build. Found at run time, so that all of it can be moved together.
 */
KQHOST_EXPORT QString moduleFolder();

} // namespace UICommonMdl
