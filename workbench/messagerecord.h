#pragma once

#include "host/json/fwd.h"

#include <QString>

/// One message between host and module.
struct MessageRecord {
    enum class Direction { ToModule, FromModule };

    Direction direction = Direction::ToModule;
    int id = 0;
    QString p1;
    QString p2;

    /// Whether the module says here that the operator saved or left.
    bool isResult() const;

    /// @p json, a parameter or another text, with every address in it masked as
    /// host/video/maskedaddress.h does, in names of members and in JSON inside of texts, too. A
    /// text without addresses comes back as it is.
    static QString masked(const QString& json);
    /// Does so in @p document; whether anything had to be masked.
    static bool mask(kql::Json::Value& document);
};
