#pragma once

class FightCalibrateData;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Writes calibrate areas and the rectangles inside them. False when there is no place for them.
namespace FightCalibrateWriter
{

bool writeFightCalibrate(const FightCalibrateData& data, kql::Json::Value& document);

} // namespace FightCalibrateWriter
