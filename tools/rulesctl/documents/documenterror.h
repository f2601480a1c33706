#pragma once

#include "host/json/value.h"

#include <QString>

/// Why a document cannot be used, and where.
struct DocumentError {
    QString file;   ///< as it was named; "-" for standard input
    int line = 0;   ///< from 1; 0 where there is none
    int column = 0; ///< from 1, in code points; 0 where there is none
    QString reason;

    /// "FILE:LINE:COLUMN: reason", without a line "FILE: reason".
    QString text() const;
    /// An object of the four, null for what is not there.
    kql::Json::Value toJson() const;
};
