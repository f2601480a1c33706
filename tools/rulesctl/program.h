#pragma once

#include <QStringList>

/// rulesctl as a whole: from its words to its exit status.
namespace Program
{

/// Whether the command of that name paints, and so takes a QGuiApplication.
bool paints(const char* command);

/// Makes files named in UTF-8 readable where no locale is set, and system texts English. To be
/// called once, when there is an application.
void useEnglish();

/// Does what @p words, those behind the program's name, ask for. Returns the exit status.
int run(const QStringList& words);

} // namespace Program
