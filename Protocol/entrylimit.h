#pragma once

#include "host/json/fwd.h"

#include <QtGlobal>

class RuleData;

/**
 * What a template lets a configuration hold. Each entry takes up the template's attributes, checks
 * and prototype, so that two short documents can ask for more than a process can hold.
 */
namespace EntryLimit
{

/// What an entry of the scene of @p data, or a figure inside of one, counts of Limits::kSceneText.
/// @p skeleton is the document that the entries are written into.
qint64 textPerEntry(const RuleData& data, const kql::Json::Value& skeleton);

/// What the entries and figures of @p data count of it now, as they do when they are read.
qint64 textHeld(const RuleData& data);

/// How many entries @p document has for the scene of @p data.
int countEntries(const RuleData& data, const kql::Json::Value& document);

/// How many figures the entries of @p data have inside of their own, where the configuration
/// decides on their number; else 0.
int countInnerFigures(const RuleData& data);

} // namespace EntryLimit
