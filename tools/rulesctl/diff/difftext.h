#pragma once

#include <QString>

class ConfigDiff;

/// A comparison as people read it.
namespace DiffText
{

/// A line for each change, by sections, below the names of both configurations; empty where there
/// is none. With @p isColoured as terminals show what came and what went.
QString of(const ConfigDiff& diff, const QString& a, const QString& b, bool isColoured);

/// What stands above the changes of a section; @p scene is its key, empty for the rest.
QString heading(const QString& scene);

} // namespace DiffText
