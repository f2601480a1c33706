#pragma once

#include "tools/rulesctl/arguments.h"
#include "tools/rulesctl/exitstatus.h"

#include <vector>

class Output;

/// A command of rulesctl. Help, completion and the check of its words come from here.
struct Command {
    const char* name;
    const char* summary;  ///< one line, for the list of commands
    const char* usage;    ///< behind "rulesctl NAME"
    const char* details;  ///< paragraphs; what its exit statuses mean among them
    const char* examples; ///< a line each
    /// Its own; --template, --algorithm, --language and --help have all.
    std::vector<OptionSpec> options;
    int operandCount = 0; ///< the most words that may stand without an option
    /// What of arguments goes not together, or is missing, in a line; empty for nothing.
    QString (*fault)(const Arguments& arguments) = nullptr;
    /// Does it. Complaints have gone to standard error when it returns; what could not be written
    /// to @p output is its caller's business.
    ExitStatus (*run)(const Arguments& arguments, Output& output) = nullptr;
    bool paints = false; ///< needs fonts and pictures, though no display
};

/// The table of commands, in the order of the help. A command is a file of its own with a function
/// that is named here, and a line in commands.cpp.
namespace Commands
{

const std::vector<const Command*>& all();
/// Null when there is none of that name.
const Command* find(const QString& name);
/// The options that all commands have.
const std::vector<OptionSpec>& commonOptions();
/// Those of @p command and the common ones.
std::vector<OptionSpec> optionsOf(const Command& command);

const Command& check();
const Command& convert();
const Command& lint();
const Command& diff();
const Command& apply();
const Command& render();
const Command& report();

} // namespace Commands
