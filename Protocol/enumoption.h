#pragma once

#include <QString>

/// One choice of an attribute's enumeration.
struct EnumOption {
    QString key;
    QString value;       ///< as stored in the configuration
    QString text;        ///< as shown
    QString description; ///< tool tip
    bool isAll = false;  ///< exclusive: checking it unchecks the other boxes
};
