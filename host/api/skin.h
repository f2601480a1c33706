#pragma once

#include "host/api/kqhostexport.h"

#include <QString>

namespace UICommonMdl
{

/**
 * Where the skin's @p file for @p module is: in the folder that the environment variable
 * KQ_SKIN_DIR names, else in "skin" beside the application or in a library path, else in the
 * resources. The path is not promised to exist.
 */
KQHOST_EXPORT QString GetSkinPath(const QString& module, const QString& file);

/// Reads a style sheet (UTF-8); false, with @p text unchanged, when it cannot be read.
KQHOST_EXPORT bool loadStyleSheet(const QString& path, QString& text);

} // namespace UICommonMdl
