#pragma once

#include "host/json/value.h"

#include <QString>
#include <vector>

/// A recorded session: steps as JSON lines, each with its line number in the file.
struct SessionScript {
    struct Step {
        int line = 0;
        kql::Json::Value step;
    };

    QString folder; ///< files that a step names are looked for here first
    std::vector<Step> steps;

    /// Reads @p path; false, with one line in @p error, when a line is not a JSON object with
    /// a text "do".
    bool read(const QString& path, QString& error);
};
