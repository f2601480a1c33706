#include "Protocol/calibration/calibrateareareader.h"

#include "Protocol/calibration/calibrateareadata.h"
#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/calibration/calibratestaffs.h"
#include "Protocol/configmember.h"
#include "Protocol/entrykey.h"
#include "Protocol/entrylist.h"
#include "Protocol/figurereader.h"
#include "Protocol/jsonpath.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"
#include "host/json/value.h"

#include <utility>

using kql::Json::Value;

namespace
{

QString label(const RuleProtocolItem& item, int number)
{
    return item.countRange().max > 1 ? item.caption() + QString::number(number) : item.caption();
}

const DrawItem* readArea(CalibrateAreaData& data, const Value& json, const RuleDataInfo& entry)
{
    const RuleProtocolItem& region = *data.calibrateTemplate()->regionItem();
    const Value* found = region.path().readPath(json);
    if (!found || !found->isArray())
        return nullptr;
    const int number = data.getDataCount() + 1;
    return FigureReader(data).add(region, entry, PointConversion::toPoints(*found),
                                  label(region, number));
}

/// Reads staffs one after another, so that they stay in the document's order.
void readStaffs(CalibrateAreaData& data, const Value& staffs, const RuleDataInfo& entry,
                const DrawItem* area)
{
    const auto kinds = CalibrateStaffs::kinds(*data.calibrateTemplate());
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

void readLengths(const CalibrateAreaTemplate& dataTemplate, const Value& staffs,
                 RuleDataInfo& entry)
{
    const auto kinds = CalibrateStaffs::kinds(dataTemplate);
    for (const CalibrateStaffs::Kind& kind : kinds) {
        const EntryKey key(kind.length->key());
        const QVariant shown = CalibrateStaffs::shownLength(staffs, kind);
        entry.setValue(key, shown);
        const Value* unreadable = CalibrateStaffs::unreadableLength(staffs, kind);
        if (unreadable && !shown.isValid())
            entry.keepAsRead(key, *unreadable);
    }
}

void readEntry(CalibrateAreaData& data, const Value& json, int index)
{
    const CalibrateAreaTemplate& dataTemplate = *data.calibrateTemplate();
    auto entry = data.newDataInfo();
    entry->setSourceIndex(index);
    const DrawItem* area = readArea(data, json, *entry);
    const Value* staffs = dataTemplate.verticalStaffItem()->path().readPath(json);
    if (staffs && staffs->isArray())
        readStaffs(data, *staffs, *entry, area);
    readLengths(dataTemplate, staffs ? *staffs : Value(), *entry);
    data.addDataInfo(std::move(entry));
}

} // namespace

void CalibrateAreaReader::read(CalibrateAreaData& data, const Value& document)
{
    const JsonPath parent(data.getTemplate()->parent());
    const auto entries = EntryList::getJsonItemList(parent.readPath(document));
    for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
        if (const Value* json = EntryList::object(entries, i))
            readEntry(data, *json, i);
    }
}
