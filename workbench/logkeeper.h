#pragma once

#include <QStringList>
#include <QtGlobal>

/// Keeps the last lines of the program's log besides passing them on, for those who ask for them
/// later. Safe on any thread.
namespace LogKeeper
{

/// From here on; to be called once.
void start();
/// Adds a line that is in no other log.
void note(const QString& line);
/// The lines so far, with their times, the oldest first.
QStringList lines();

} // namespace LogKeeper
