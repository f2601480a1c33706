#pragma once

class FightCalibrateData;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Reads calibrate areas and the rectangles inside them.
namespace FightCalibrateReader
{

void read(FightCalibrateData& data, const kql::Json::Value& document);

} // namespace FightCalibrateReader
