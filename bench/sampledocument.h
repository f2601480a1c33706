#pragma once

#include <QByteArray>
#include <QString>

/// Templates and configurations of any size, the same ones in every run.
namespace SampleDocument
{

/// Rules of a region, a name and five attributes.
QString ruleTemplate();
/// A configuration with @p count such rules; a region has 8 points.
QByteArray rules(int count);
/// Rules of a region and @p attributes attributes of all kinds of rows.
QString panelTemplate(int attributes);

} // namespace SampleDocument
