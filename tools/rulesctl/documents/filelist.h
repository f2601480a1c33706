#pragma once

#include <QStringList>

/// The files that the words of --config stand for.
namespace FileList
{

/// A folder stands for the files *.json in it, by name in the order of code points; each other
/// word, and a folder without such files, for itself.
QStringList of(const QStringList& words);

} // namespace FileList
