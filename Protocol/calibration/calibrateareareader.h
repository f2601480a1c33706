#pragma once

class CalibrateAreaData;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Reads calibrate areas and their staffs.
namespace CalibrateAreaReader
{

void read(CalibrateAreaData& data, const kql::Json::Value& document);

} // namespace CalibrateAreaReader
