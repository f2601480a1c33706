#pragma once

#include <QString>
#include <QStringList>

/// An attribute applies while its controlling attribute has one of these values.
struct ValidCondition {
    QString controlKey;
    QStringList values;
    QStringList comparable = {}; ///< the values for attributes of types with several spellings
};
