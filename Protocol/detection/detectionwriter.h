#pragma once

class RuleData;
struct WriteContext;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Writes detection areas, each in the shape that it was read in; new ones in the skeleton's.
/// False when there is no place for them.
namespace DetectionWriter
{

bool writeDetection(const RuleData& data, const WriteContext& context, kql::Json::Value& document);

} // namespace DetectionWriter
