#pragma once

#include "host/json/fwd.h"

#include <QPoint>
#include <QVariant>
#include <QVector>
#include <string_view>

class CalibrateAreaTemplate;
class RuleProtocolItem;

/// What a calibrate area's staffs look like in a configuration.
namespace CalibrateStaffs
{

/// One type of staff: its name there, the item that draws it and the one that holds its length.
struct Kind {
    std::string_view type;
    const RuleProtocolItem* staff;
    const RuleProtocolItem* length;
    bool isDrawn; ///< rather than taken from the area's edges
};

/// Vertical and horizontal.
QVector<Kind> kinds(const CalibrateAreaTemplate& dataTemplate);

/// Position in @p kinds of the type that @p staff has; -1 for other types.
int kindOf(const kql::Json::Value& staff, const QVector<Kind>& kinds);

/// Start and end of a staff (0..8192); empty when it lacks one.
QVector<QPoint> points(const kql::Json::Value& staff);

/// The length that is shown for all staffs of @p kind in @p staffs, in metres: the first one's;
/// the default where none has a length or all are to be drawn still, invalid where what they have
/// are no numbers or there is no staff to be sent.
QVariant shownLength(const kql::Json::Value& staffs, const Kind& kind);

/// The first length of @p kind in @p staffs that is there and no number; null when there is none.
const kql::Json::Value* unreadableLength(const kql::Json::Value& staffs, const Kind& kind);

/// Makes the lengths in @p skeleton, the list of staffs that new ones are made from, the defaults
/// of the types that have none: that of a staff of the type, else that of the first staff.
void takeSampleLengths(CalibrateAreaTemplate& dataTemplate, const kql::Json::Value& skeleton);

} // namespace CalibrateStaffs
