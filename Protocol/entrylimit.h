#pragma once

#include <QtGlobal>

class RuleData;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/**
 * What a template lets a configuration hold. Each entry takes up the template's attributes, checks
 * and prototype, so that two short documents can ask for more than a process can hold.
 */
namespace EntryLimit
{

// What one section of a template may have: an attribute's row takes some 60 kB, a choice 16.
constexpr int kMostAttributes = 1000;
constexpr int kMostChoices = 5000;
/// Each so many characters of the styled text of a choice or default count as one choice more.
constexpr int kChoiceText = 1024;

/// What a configuration may have of entries of a scene: each has a button, which takes some 15 kB.
constexpr int kMostEntries = 3000;
/// In characters: all entries of all scenes as they are written, and what the attributes of a
/// scene read of them.
constexpr qint64 kMostText = 32 << 20;

/// What an entry of the scene of @p data, or a figure inside of one, counts of kMostText.
/// @p skeleton is the document that the entries are written into.
qint64 textPerEntry(const RuleData& data, const kql::Json::Value& skeleton);

/// How many entries @p document has for the scene of @p data.
int countEntries(const RuleData& data, const kql::Json::Value& document);

/// How many figures the entries of @p data have inside of their own, where the configuration
/// decides on their number; else 0.
int countInnerFigures(const RuleData& data);

} // namespace EntryLimit
