#pragma once

class LanesData;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Reads lanes, and their rules where these are edited per lane.
namespace LanesReader
{

void read(LanesData& data, const kql::Json::Value& document);

} // namespace LanesReader
