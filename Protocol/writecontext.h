#pragma once

#include "host/json/value.h"

#include <QString>

/// What writers of all scenes need besides the scene's data.
struct WriteContext {
    const kql::Json::Value& configuration; ///< as read; null when nothing was
    int algorithmId = 0;
    QString algorithmName;
};
