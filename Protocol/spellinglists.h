#pragma once

#include <QStringList>

/// All texts that Spelling knows, in the order in which it looks them up.
namespace SpellingLists
{

QStringList facades();
QStringList valueTypes();
QStringList directions();
QStringList operators();

} // namespace SpellingLists
