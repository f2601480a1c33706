#pragma once

class LanesData;
struct MissingPlace;
struct WriteContext;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Writes lanes, and their rules where these are edited per lane. False when there is no place for
/// them; @p missing, the lanes' place when called, then says where that would be.
namespace LanesWriter
{

bool writeLanes(const LanesData& data, const WriteContext& context, kql::Json::Value& document,
                MissingPlace& missing);

} // namespace LanesWriter
