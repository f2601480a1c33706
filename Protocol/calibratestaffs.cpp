#include "Protocol/calibratestaffs.h"

#include "Protocol/calibrateareatemplate.h"
#include "Protocol/configmember.h"
#include "Protocol/pointconversion.h"
#include "host/value.h"

using kql::Json::Value;

QVector<CalibrateStaffs::Kind> CalibrateStaffs::kinds(const CalibrateAreaTemplate& dataTemplate)
{
    return {{ConfigMember::kVertical, dataTemplate.verticalStaffItem(),
             dataTemplate.verticalLengthItem()},
            {ConfigMember::kHorizontal, dataTemplate.horizontalStaffItem(),
             dataTemplate.horizontalLengthItem()}};
}

int CalibrateStaffs::kindOf(const Value& staff, const QVector<Kind>& kinds)
{
    const std::string_view type = staff[ConfigMember::kType].asView();
    for (int i = 0; i < kinds.size(); ++i) {
        if (kinds[i].type == type)
            return i;
    }
    return -1;
}

QVector<QPoint> CalibrateStaffs::points(const Value& staff)
{
    const Value& start = staff[ConfigMember::kStart];
    const Value& end = staff[ConfigMember::kEnd];
    if (!PointConversion::isPoint(start) || !PointConversion::isPoint(end))
        return {};
    return {PointConversion::toPoint(start), PointConversion::toPoint(end)};
}

QVariant CalibrateStaffs::shownLength(const Value& staffs, std::string_view type)
{
    for (int i = 0; staffs.isArray() && i < staffs.size(); ++i) {
        const Value& length = staffs[i][ConfigMember::kLength];
        if (staffs[i][ConfigMember::kType].asView() == type && length.isNumeric())
            return length.asDouble();
    }
    return {};
}
