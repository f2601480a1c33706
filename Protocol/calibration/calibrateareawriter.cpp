#include "Protocol/calibration/calibrateareawriter.h"

#include "Protocol/calibration/calibrateareadata.h"
#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/calibration/calibratestaffs.h"
#include "Protocol/configmember.h"
#include "Protocol/entrylist.h"
#include "Protocol/entrytarget.h"
#include "Protocol/entrywriter.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valueconversion.h"
#include "Protocol/writecontext.h"
#include "draw/drawitem.h"

#include <utility>

using kql::Json::Value;
using Kinds = QVector<CalibrateStaffs::Kind>;

namespace
{

constexpr int kStaffPoints = 2;

/// Writes one area after another.
class AreaWriter
{
public:
    AreaWriter(const CalibrateAreaData& data, const WriteContext& context);

    Value prototype(const Value* skeleton) const { return m_writer.prototype(skeleton); }
    void write(const RuleDataInfo& entry, Value& json) const;

private:
    struct Pass {
        const RuleDataInfo& entry;
        const Value& asRead;
        Value& json;
        QVector<QVariant> lengthsAsRead; ///< of each kind, as shown
    };

    const Value& asRead(const RuleDataInfo& entry) const;
    const Value& staffsIn(const Value& asRead) const;
    QVector<QVariant> shownLengths(const Value& staffs) const;
    const DrawItem* area(const RuleDataInfo& entry) const;
    void writeArea(const Pass& pass) const;
    void writeMethod(const Pass& pass) const;
    void writeStaffs(const Pass& pass) const;
    Value drawnStaffs(const Pass& pass, const Value& prototype) const;
    void deriveStaffs(const Pass& pass, const Value& prototype, Value& staffs) const;
    bool hasStaff(const Value& staffs, int kind) const;
    bool isDrawnHere(const Pass& pass) const;
    Value staffLength(const Pass& pass, int kind, const DrawItem& staff) const;
    const JsonPath& staffsPath() const { return m_template.verticalStaffItem()->path(); }

    const CalibrateAreaTemplate& m_template;
    Kinds m_kinds;
    EntryWriter m_writer;
    EntryList::Entries m_sources;
    Value m_nothing;
};

Value writeStaff(const Value& prototype, std::string_view type, const Value& length,
                 const QVector<QPoint>& points)
{
    Value json = prototype;
    json[ConfigMember::kType] = Value(type);
    if (length.isNull())
        json.removeMember(ConfigMember::kLength);
    else
        json[ConfigMember::kLength] = length;
    json[ConfigMember::kStart] = PointConversion::toJson(points[0]);
    json[ConfigMember::kEnd] = PointConversion::toJson(points[1]);
    return json;
}

AreaWriter::AreaWriter(const CalibrateAreaData& data, const WriteContext& context)
    : m_template(*data.calibrateTemplate()),
      m_kinds(CalibrateStaffs::kinds(m_template)),
      m_writer(data, m_template.name()),
      m_sources(EntryList::at(context.configuration, JsonPath(m_template.parent())))
{
}

const Value& AreaWriter::asRead(const RuleDataInfo& entry) const
{
    const Value* source = EntryList::object(m_sources, entry.sourceIndex());
    return source ? *source : m_nothing;
}

const Value& AreaWriter::staffsIn(const Value& asRead) const
{
    const Value* staffs = staffsPath().probe(asRead);
    return staffs ? *staffs : m_nothing;
}

QVector<QVariant> AreaWriter::shownLengths(const Value& staffs) const
{
    QVector<QVariant> lengths;
    for (const CalibrateStaffs::Kind& kind : m_kinds)
        lengths.append(CalibrateStaffs::shownLength(staffs, kind));
    return lengths;
}

const DrawItem* AreaWriter::area(const RuleDataInfo& entry) const
{
    return m_writer.figures().first(entry.id(), *m_template.regionItem());
}

void AreaWriter::write(const RuleDataInfo& entry, Value& json) const
{
    const Value& source = asRead(entry);
    const Pass pass{entry, source, json, shownLengths(staffsIn(source))};
    writeArea(pass);
    writeMethod(pass);
    writeStaffs(pass);
}

void AreaWriter::writeArea(const Pass& pass) const
{
    const DrawItem* figure = area(pass.entry);
    Value* target = figure ? m_template.regionItem()->path().create(pass.json) : nullptr;
    if (target)
        *target = PointConversion::toJson(figure->getPoints());
}

void AreaWriter::writeMethod(const Pass& pass) const
{
    if (!m_template.method().isEmpty())
        pass.json[ConfigMember::kMethod] = Value(m_template.method());
}

void AreaWriter::writeStaffs(const Pass& pass) const
{
    const Value* skeleton = staffsPath().probe(std::as_const(pass.json));
    const Value* first = EntryList::object(EntryList::getJsonItemList(skeleton), 0);
    const Value prototype = first ? *first : Value(kql::Json::ValueType::Object);
    Value staffs = drawnStaffs(pass, prototype);
    if (m_template.isLaneMethod())
        deriveStaffs(pass, prototype, staffs);
    if (staffs.empty() && !skeleton)
        return;
    if (Value* target = staffsPath().create(pass.json))
        *target = std::move(staffs);
}

Value AreaWriter::drawnStaffs(const Pass& pass, const Value& prototype) const
{
    Value staffs(kql::Json::ValueType::Array);
    for (const auto& [id, figure] : m_writer.figures().of(pass.entry.id())) {
        for (int kind = 0; kind < m_kinds.size(); ++kind) {
            const bool isOfKind = figure->drawType() == m_kinds[kind].staff->drawType();
            const auto points = isOfKind ? figure->getPoints() : QVector<QPoint>();
            if (points.size() >= kStaffPoints)
                staffs.append(writeStaff(prototype, m_kinds[kind].type,
                                         staffLength(pass, kind, *figure), points));
        }
    }
    return staffs;
}

/// An area of known size needs no drawn staffs: its first two edges are its length and width.
void AreaWriter::deriveStaffs(const Pass& pass, const Value& prototype, Value& staffs) const
{
    const DrawItem* const figure = area(pass.entry);
    const QVector<QPoint> corners = figure ? figure->getPoints() : QVector<QPoint>();
    const bool isNew = isDrawnHere(pass);
    for (int i = 0; i < m_kinds.size() && i + 1 < corners.size(); ++i) {
        const QVariant length = pass.entry.value(m_kinds[i].length->key());
        const bool isEntered = length.isValid() && (isNew || length != pass.lengthsAsRead[i]);
        if (isEntered && !hasStaff(staffs, i))
            staffs.append(writeStaff(
                prototype, m_kinds[i].type,
                ValueConversion::numberLike(length.toDouble(), prototype[ConfigMember::kLength]),
                {corners[i], corners[i + 1]}));
    }
}

bool AreaWriter::hasStaff(const Value& staffs, int kind) const
{
    for (int i = 0; i < staffs.size(); ++i) {
        if (CalibrateStaffs::kindOf(staffs[i], m_kinds) == kind)
            return true;
    }
    return false;
}

/// Whether the entry has an area that is not the one it was read with.
bool AreaWriter::isDrawnHere(const Pass& pass) const
{
    const DrawItem* figure = area(pass.entry);
    if (!figure)
        return false;
    const Value* points = m_template.regionItem()->path().probe(pass.asRead);
    return !points || PointConversion::toPoints(*points) != figure->getPoints();
}

/// A staff keeps the length that it was read with until the length shown for its type changes.
Value AreaWriter::staffLength(const Pass& pass, int kind, const DrawItem& staff) const
{
    const QVariant shown = pass.entry.value(m_kinds[kind].length->key());
    const Value& own = staffsIn(pass.asRead)[staff.sourceIndex()][ConfigMember::kLength];
    if (!own.isNull() && shown == pass.lengthsAsRead[kind])
        return own;
    if (!shown.isValid())
        return {};
    return ValueConversion::numberLike(shown.toDouble(), own);
}

} // namespace

bool CalibrateAreaWriter::writeCalibrateAreaData(const CalibrateAreaData& data,
                                                 const WriteContext& context, Value& document)
{
    EntryTarget target(document, data.getTemplate()->parent());
    const AreaWriter writer(data, context);
    const Value prototype = writer.prototype(target.prototype());
    std::vector<Value> entries;
    for (const auto& entry : data.getAllData()) {
        Value json = prototype;
        writer.write(*entry, json);
        entries.push_back(std::move(json));
    }
    return target.put(std::move(entries));
}
