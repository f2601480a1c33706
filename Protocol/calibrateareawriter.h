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

/// Writes calibrate areas and their staffs.
namespace CalibrateAreaWriter
{

void writeCalibrateAreaData(const CalibrateAreaData& data, const WriteContext& context,
                            kql::Json::Value& document);

} // namespace CalibrateAreaWriter
