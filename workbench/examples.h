#pragma once

#include <QString>
#include <QStringList>

/// The example documents that come with the program.
namespace Examples
{

/// Their names, those of their folders; empty where the program lies without them.
QStringList names();
/// What an operator reads.
QString title(const QString& name);
QString templateFile(const QString& name);
QString configFile(const QString& name);

} // namespace Examples
