#pragma once

#include "tools/rulesctl/arguments.h"

/// Options that several commands have, and what goes not together among them.
namespace RunOptions
{

OptionSpec config();
OptionSpec jsonl();
/// Of two formats, text and json, or three.
OptionSpec format(const char* valueName = "text|json");

/// Which of --config and --jsonl is missing, or too much; empty for nothing.
QString inputFault(const Arguments& arguments);
/// Whether --format is one of @p names, the first being meant without it; a complaint else.
QString formatFault(const Arguments& arguments, const QStringList& names);
bool isJson(const Arguments& arguments);

} // namespace RunOptions
