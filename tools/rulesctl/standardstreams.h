#pragma once

#include <QString>

/// Standard input, output and error as the process was started with them.
namespace StandardStreams
{

/// Puts something of which every use fails where one of the three was closed. Else the next file
/// that is opened takes its place, and what is meant for a terminal gets into it. To be called
/// before anything is opened.
void occupy();

/// Why the last use of one of them failed, by errno.
QString fault();

} // namespace StandardStreams
