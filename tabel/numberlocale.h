#pragma once

#include <QLocale>

/// Numbers as devices write them: a point as decimal separator and no grouping, whatever the
/// system's locale.
inline QLocale numberLocale()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}
