#pragma once

#include "host/json/value.h"

#include <QString>
#include <optional>

/// One difference between two configurations, as it is printed.
struct Change {
    enum class Kind { Added, Removed, Renamed, Moved, Enabled, Attribute, Figure, Other };

    Kind kind;
    QString scene = {}; ///< the section's key; empty for Other
    QString name = {};  ///< the entry's button text, of the second configuration if it is in both
    std::optional<int> a = {}; ///< position of the entry, from 1
    std::optional<int> b = {};
    QString key = {};
    QString caption = {};
    kql::Json::Value from = {};
    kql::Json::Value to = {};
    std::optional<double> by = {}; ///< way of a figure's farthest corner, in per cent of 8192
    int number = 0;        ///< of a figure, from 1, where the entry has several of its attribute
    bool isTurned = false; ///< of a parallelogram, which is only crossed in another direction
    QString pointer = {};  ///< of Other, in the configuration that has it
    QString text = {};
    /// Whether a save tells the two apart by it. What no attribute names is the skeleton's then.
    bool isSaved = true;

    /// As scripts read it.
    kql::Json::Value toJson() const;
};
