#pragma once

#include <QString>

/// Where the document being written has no place for entries.
struct MissingPlace {
    QString parent;  ///< the path in the document
    QString section; ///< the template's section that names it
};
