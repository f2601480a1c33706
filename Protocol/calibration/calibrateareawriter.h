#pragma once

class CalibrateAreaData;
struct WriteContext;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Writes calibrate areas and their staffs. False when there is no place for them.
namespace CalibrateAreaWriter
{

bool writeCalibrateAreaData(const CalibrateAreaData& data, const WriteContext& context,
                            kql::Json::Value& document);

} // namespace CalibrateAreaWriter
