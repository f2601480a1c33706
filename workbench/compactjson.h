#pragma once

#include <QByteArray>

namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// JSON without line breaks, members in their order.
namespace CompactJson
{

/// @p value as UTF-8 text on one line, without a line end.
QByteArray text(const kql::Json::Value& value);

} // namespace CompactJson
