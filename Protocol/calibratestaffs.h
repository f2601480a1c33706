#pragma once

#include <QPoint>
#include <QVariant>
#include <QVector>
#include <string_view>

class CalibrateAreaTemplate;
class RuleProtocolItem;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// What a calibrate area's staffs look like in a configuration.
namespace CalibrateStaffs
{

/// One type of staff: its name there, the item that draws it and the one that holds its length.
struct Kind {
    std::string_view type;
    const RuleProtocolItem* staff;
    const RuleProtocolItem* length;
};

/// Vertical and horizontal.
QVector<Kind> kinds(const CalibrateAreaTemplate& dataTemplate);

/// Position in @p kinds of the type that @p staff has; -1 for other types.
int kindOf(const kql::Json::Value& staff, const QVector<Kind>& kinds);

/// Start and end of a staff (0..8192); empty when it lacks one.
QVector<QPoint> points(const kql::Json::Value& staff);

/// The length that stands for all staffs of that type in @p staffs: the first one's, in metres;
/// invalid when there is none.
QVariant shownLength(const kql::Json::Value& staffs, std::string_view type);

} // namespace CalibrateStaffs
