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
/// What is wrong with --format, if it is no one of @p names, or not json beside --jsonl, where it
/// says nothing new; empty for nothing.
QString formatFault(const Arguments& arguments, const QStringList& names);
bool isJson(const Arguments& arguments);

} // namespace RunOptions
