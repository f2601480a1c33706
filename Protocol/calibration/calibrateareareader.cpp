#include "Protocol/calibration/calibrateareaprotocol.h"
#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/calibration/calibratestaffs.h"
#include "Protocol/configmember.h"
#include "Protocol/figurereader.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"

using kql::Json::Value;

namespace
{

QString label(const RuleProtocolItem& item, int number)
{
    return item.countRange().max > 1 ? item.caption() + QString::number(number) : item.caption();
}

/// Reads staffs one after another, so that they stay in the document's order.
void readStaffs(RuleData& data, const QVector<CalibrateStaffs::Kind>& kinds, const Value& staffs,
                const RuleDataInfo& entry, DrawItem* area)
{
    QVector<int> numbers(kinds.size());
    for (int i = 0; i < staffs.size(); ++i) {
        const int kind = CalibrateStaffs::kindOf(staffs[i], kinds);
        const auto points = CalibrateStaffs::points(staffs[i]);
        if (kind < 0 || points.isEmpty())
            continue;
        const RuleProtocolItem& item = *kinds[kind].staff;
        const QString name = label(item, ++numbers[kind]);
        if (DrawItem* staff = FigureReader(data).add(item, entry, points, name, area))
            staff->setSourceIndex(i);
    }
}

void readLengths(const QVector<CalibrateStaffs::Kind>& kinds, const Value& staffs,
                 RuleDataInfo& entry)
{
    for (const CalibrateStaffs::Kind& kind : kinds) {
        const QString& key = kind.length->key();
        const QVariant shown = CalibrateStaffs::shownLength(staffs, kind);
        entry.setValue(key, shown);
        const Value* unreadable = CalibrateStaffs::unreadableLength(staffs, kind);
        if (unreadable && !shown.isValid())
            entry.keepAsRead(key, *unreadable);
    }
}

} // namespace

Value CalibrateAreaProtocol::copiedPart(const Value& asRead) const
{
    const Value& staffs = asRead[ConfigMember::kStaffs];
    Value copied;
    for (int i = 0; staffs.isArray() && i < staffs.size(); ++i) {
        const Value& length = staffs[i][ConfigMember::kLength];
        Value staff;
        if (length.isNumeric()) {
            staff[ConfigMember::kType] = staffs[i][ConfigMember::kType];
            staff[ConfigMember::kLength] = length;
        }
        copied[ConfigMember::kStaffs].append(std::move(staff));
    }
    return copied;
}

void CalibrateAreaProtocol::read(RuleData& data, const Value& document) const
{
    const CalibrateAreaTemplate& area = *CalibrateAreaTemplate::of(data);
    const RuleProtocolItem& region = *area.regionItem();
    const auto kinds = CalibrateStaffs::kinds(area);
    readEntries(data, document, [&](const Value& json, RuleDataInfo& entry) {
        DrawItem* figure =
            FigureReader(data).read(region, entry, json, label(region, data.getDataCount() + 1));
        const Value* staffs = area.verticalStaffItem()->path().readPath(json);
        if (staffs && staffs->isArray())
            readStaffs(data, kinds, *staffs, entry, figure);
        readLengths(kinds, staffs ? *staffs : Value(), entry);
    });
}
