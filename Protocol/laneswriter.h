#pragma once

class LanesData;
struct WriteContext;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Writes lanes, and their rules where these are edited per lane.
namespace LanesWriter
{

void writeLanes(const LanesData& data, const WriteContext& context, kql::Json::Value& document);

} // namespace LanesWriter
