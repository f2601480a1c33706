#pragma once

#include <QString>

/// One message between host and module.
struct MessageRecord {
    enum class Direction { ToModule, FromModule };

    Direction direction = Direction::ToModule;
    int id = 0;
    QString p1;
    QString p2;
};
