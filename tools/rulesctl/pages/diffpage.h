#pragma once

#include "tools/rulesctl/render/ground.h"

class ConfigDiff;
class SavedConfig;

/// A comparison as a page: both pictures side by side, what changed is marked in them and listed.
namespace DiffPage
{

/// One of the two, and the name of its file.
struct Side {
    SavedConfig& config;
    QString file;
};

/// Needs an application with fonts.
QByteArray of(const ConfigDiff& diff, const Side& a, const Side& b, const Ground& ground);

} // namespace DiffPage
