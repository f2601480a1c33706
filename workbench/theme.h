#pragma once

#include <QStringList>

class QPalette;

/// The colours of the program's windows where they are not to be the desktop's own.
namespace Theme
{

/// "light" and "dark".
QStringList names();
/// Texts have 4.5:1 to what they stand on, disabled ones, too.
QPalette palette(bool dark);
/// One of names(), for all windows that there are and will be; nothing for anything else.
void apply(const QString& name);

} // namespace Theme
