#pragma once

#include <QString>

/// What stands against saving a scene, and where an operator can mend it.
struct CheckFault {
    QString message;     ///< translated
    int dataId = 0;      ///< of the entry at fault; 0 where their number is
    QString key;         ///< of the attribute or figure in the template, or of a row of the panel's
    QString comparedKey; ///< of the attribute that the value does not go with; empty for none
    int itemId = 0;      ///< of the figure that is not finished or one too many; 0 for none
};
