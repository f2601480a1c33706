#pragma once

#include <QByteArray>
#include <QString>

class RuleParser;

/// Templates and configurations of any size, the same ones in every run.
namespace SampleDocument
{

/// Rules of a region, a name and five attributes.
QString ruleTemplate();
/// A configuration with @p count such rules; a region has 8 points.
QByteArray rules(int count);
/// Rules of a region and @p attributes attributes of all kinds of rows.
QString panelTemplate(int attributes);

/// Lets @p parser read more than a client's window takes.
void liftLimits(RuleParser& parser);

} // namespace SampleDocument
