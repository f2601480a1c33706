#pragma once

#include "host/json/value.h"

#include <QString>
#include <vector>

class LoadedRules;

/// What a save of the rules window would refuse.
struct SaveFailure {
    QString scene;   ///< key of the template's section; empty where it is about all of them
    QString message; ///< in the words of the window's box
    int entry = 0;   ///< from 1; 0 where it is about no single one
    QString name;    ///< of the entry, as its button shows it; empty for none
    QString key;     ///< of the attribute, of two that are compared the first; empty for none

    /// An object of these, null for what is not there.
    kql::Json::Value toJson() const;
    /// On one line.
    QString text() const;

    /// Of each scene of @p rules, which were loaded, the first one; then, where the rules have
    /// none, two rules of one name, at the second; then what the writer refuses. Unnamed rules have
    /// the name that picking them gives.
    static std::vector<SaveFailure> of(LoadedRules& rules);
    /// A list of toJson().
    static kql::Json::Value toJson(const std::vector<SaveFailure>& failures);
};
