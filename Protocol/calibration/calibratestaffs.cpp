#include "Protocol/calibration/calibratestaffs.h"

#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/configmember.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruleprotocolitem.h"
#include "host/json/value.h"

using kql::Json::Value;

QVector<CalibrateStaffs::Kind> CalibrateStaffs::kinds(const CalibrateAreaTemplate& dataTemplate)
{
    const bool isDrawn = dataTemplate.isSceneMethod();
    return {{ConfigMember::kVertical, dataTemplate.verticalStaffItem(),
             dataTemplate.verticalLengthItem(), isDrawn},
            {ConfigMember::kHorizontal, dataTemplate.horizontalStaffItem(),
             dataTemplate.horizontalLengthItem(), isDrawn}};
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

QVariant CalibrateStaffs::shownLength(const Value& staffs, const Kind& kind)
{
    bool isSent = kind.isDrawn;
    bool isReadable = true;
    for (int i = 0; staffs.isArray() && i < staffs.size(); ++i) {
        const Value& length = staffs[i][ConfigMember::kLength];
        if (staffs[i][ConfigMember::kType].asView() != kind.type)
            continue;
        if (length.isNumeric())
            return length.asDouble();
        isSent = true;
        isReadable = isReadable && length.isNull();
    }
    return isSent && isReadable ? kind.length->defaultValue() : QVariant();
}

const Value* CalibrateStaffs::unreadableLength(const Value& staffs, const Kind& kind)
{
    for (int i = 0; staffs.isArray() && i < staffs.size(); ++i) {
        const Value& length = staffs[i][ConfigMember::kLength];
        const bool isReadable = length.isNull() || length.isNumeric();
        if (staffs[i][ConfigMember::kType].asView() == kind.type && !isReadable)
            return &length;
    }
    return nullptr;
}

void CalibrateStaffs::takeSampleLengths(CalibrateAreaTemplate& dataTemplate, const Value& skeleton)
{
    for (const Kind& kind : kinds(dataTemplate)) {
        RuleProtocolItem* const length = dataTemplate.findItem(kind.length->key());
        if (length->defaultValue().isValid())
            continue;
        const Value& first = skeleton[0][ConfigMember::kLength];
        const QVariant ofType = shownLength(skeleton, kind);
        length->setDefaultValue(ofType.isValid() || !first.isNumeric() ? ofType : first.asDouble());
    }
}
