#pragma once

#include "host/json/fwd.h"

#include <QtGlobal>

/**
 * How long the text may become that a save hands over, in bytes. Only what may be too long is
 * printed to find out: most documents are far from it, and thousands of them are checked at once.
 */
namespace SaveLength
{

/// At most so long is the indented text of @p value, wherever in a document it stands.
qint64 mostText(const kql::Json::Value& value);

/// Whether what is written of @p entries, those of all scenes, and their scenes cannot be too
/// long, whatever was edited in rows. @p templateText and @p configurationText are what mostText()
/// says of the documents they were read from; @p typeText bytes are written into each.
bool isSurelyShort(qint64 entries, qint64 typeText, qint64 templateText, qint64 configurationText);

/// Whether the message of a save has no room for @p config, indented as it is there. A part of the
/// message is set aside for what else it says, as the channel.
bool isTooLong(const kql::Json::Value& config);

} // namespace SaveLength
