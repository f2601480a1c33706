#pragma once

#include <QString>

struct Command;

/// What --help and --version show. Plain text, at most 80 columns wide.
namespace HelpText
{

/// Of the program: its commands.
QString ofProgram();
/// Of a command: its options and examples.
QString of(const Command& command);
/// The manual page of all, for man: tools/rulesctl/rulesctl.1.
QString manual();
QString version();

} // namespace HelpText
