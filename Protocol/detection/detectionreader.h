#pragma once

class RuleData;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/**
 * Reads detection areas. The configuration holds them as objects, or as bare lists of points
 * for the template's first figure; a single bare list may stand in the place of all.
 */
namespace DetectionReader
{

void read(RuleData& data, const kql::Json::Value& document);

} // namespace DetectionReader
