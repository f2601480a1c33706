#pragma once

#include <string_view>

/// What the fuzzers run. Each takes any bytes at all; it throws Fault when the module does not keep
/// what it promises for them.
namespace Fuzz
{

/// Stands between the parts of an input that consists of several texts.
constexpr std::string_view kSeparator = "\n---\n";

/**
 * A template and a configuration, separated: parsed, read, copied, checked, written, read again.
 * A template "@2" is that of the third example.
 */
void documents(std::string_view input);

/**
 * Messages to two plug-in's widgets with a window each: a line of id and parameter kinds, a first
 * and a second parameter, all separated. Ids that are words are actions of host and operator, on
 * the second window where the word ends in "@2". Needs a QApplication.
 */
void messages(std::string_view input);

/// Operations on a canvas, some bytes each, and pictures painted of it. Needs a QGuiApplication.
void canvas(std::string_view input);

/// Lines of paths, the separator, and a document to follow them in.
void paths(std::string_view input);

} // namespace Fuzz
