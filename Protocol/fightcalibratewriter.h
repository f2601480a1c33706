#pragma once

class FightCalibrateData;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Writes calibrate areas and the rectangles inside them.
namespace FightCalibrateWriter
{

void writeFightCalibrate(const FightCalibrateData& data, kql::Json::Value& document);

} // namespace FightCalibrateWriter
