#include "Protocol/calibration/calibrateareaprotocol.h"
#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/calibration/calibratestaffs.h"
#include "Protocol/configmember.h"
#include "Protocol/entrywriter.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valueconversion.h"
#include "draw/drawitem.h"

#include <utility>

using kql::Json::Value;
using Kinds = QVector<CalibrateStaffs::Kind>;

namespace
{

constexpr int kStaffPoints = 2;

Value makeStaff(const Value& prototype, std::string_view type, const Value& length,
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

bool hasStaff(const Value& staffs, const CalibrateStaffs::Kind& kind)
{
    for (int i = 0; i < staffs.size(); ++i) {
        if (staffs[i][ConfigMember::kType].asView() == kind.type)
            return true;
    }
    return false;
}

/// Writes the staffs of one area.
class StaffsWriter
{
public:
    /// @p asRead is what the entry was read from, a null value for a new one.
    StaffsWriter(const CalibrateAreaTemplate& area, const Kinds& kinds, const RuleDataInfo& entry,
                 const EntryFigures& figures, const Value& asRead)
        : m_template(area), m_kinds(kinds), m_entry(entry), m_figures(figures), m_asRead(asRead)
    {
    }

    void write(Value& json) const;

private:
    const JsonPath& path() const { return m_template.verticalStaffItem()->path(); }
    const Value& staffsAsRead() const;
    Value drawnStaffs(const Value& prototype) const;
    void deriveStaffs(const Value& prototype, Value& staffs) const;
    bool isDrawnHere(const DrawItem& area) const;
    bool isLengthAsRead(const CalibrateStaffs::Kind& kind) const;
    Value lengthOf(const CalibrateStaffs::Kind& kind, const DrawItem& staff) const;

    const CalibrateAreaTemplate& m_template;
    const Kinds& m_kinds;
    const RuleDataInfo& m_entry;
    const EntryFigures& m_figures;
    const Value& m_asRead;
};

void StaffsWriter::write(Value& json) const
{
    const Value* skeleton = path().find(std::as_const(json));
    const Value* first = objectAt(getJsonItemList(skeleton), 0);
    const Value prototype = first ? *first : Value(kql::Json::ValueType::Object);
    Value staffs = drawnStaffs(prototype);
    if (m_template.isLaneMethod())
        deriveStaffs(prototype, staffs);
    if (staffs.empty() && !skeleton)
        return;
    if (Value* target = path().create(json))
        *target = std::move(staffs);
}

const Value& StaffsWriter::staffsAsRead() const
{
    static const Value none;
    const Value* staffs = path().find(m_asRead);
    return staffs ? *staffs : none;
}

Value StaffsWriter::drawnStaffs(const Value& prototype) const
{
    Value staffs(kql::Json::ValueType::Array);
    for (const DrawItem* figure : m_figures.of(m_entry.id())) {
        for (const CalibrateStaffs::Kind& kind : m_kinds) {
            const bool isOfKind = figure->drawType() == kind.staff->drawType();
            const auto points = isOfKind ? figure->getPoints() : QVector<QPoint>();
            if (points.size() >= kStaffPoints)
                staffs.append(makeStaff(prototype, kind.type, lengthOf(kind, *figure), points));
        }
    }
    return staffs;
}

/// An area of known size needs no drawn staffs: its first two edges are its length and width.
void StaffsWriter::deriveStaffs(const Value& prototype, Value& staffs) const
{
    const DrawItem* const area = m_figures.first(m_entry.id(), *m_template.regionItem());
    const QVector<QPoint> corners = area ? area->getPoints() : QVector<QPoint>();
    const bool isNew = area && isDrawnHere(*area);
    for (int i = 0; i < m_kinds.size() && i + 1 < corners.size(); ++i) {
        const QVariant length = m_entry.value(m_kinds[i].length->key());
        const bool isEntered = length.isValid() && (isNew || !isLengthAsRead(m_kinds[i]));
        if (isEntered && !hasStaff(staffs, m_kinds[i]))
            staffs.append(makeStaff(
                prototype, m_kinds[i].type,
                ValueConversion::numberLike(length.toDouble(), prototype[ConfigMember::kLength]),
                {corners[i], corners[i + 1]}));
    }
}

/// Whether @p area is not the one that the entry was read with.
bool StaffsWriter::isDrawnHere(const DrawItem& area) const
{
    const Value* points = m_template.regionItem()->path().find(m_asRead);
    return !points || PointConversion::toPoints(*points) != area.getPoints();
}

bool StaffsWriter::isLengthAsRead(const CalibrateStaffs::Kind& kind) const
{
    return m_entry.value(kind.length->key()) == CalibrateStaffs::shownLength(staffsAsRead(), kind);
}

/// A staff keeps the length that it was read with until the length shown for its type changes.
Value StaffsWriter::lengthOf(const CalibrateStaffs::Kind& kind, const DrawItem& staff) const
{
    const QVariant shown = m_entry.value(kind.length->key());
    const Value& lengthAsRead = staffsAsRead()[staff.sourceIndex()][ConfigMember::kLength];
    if (!lengthAsRead.isNull() && isLengthAsRead(kind))
        return lengthAsRead;
    if (!shown.isValid())
        return {};
    return ValueConversion::numberLike(shown.toDouble(), lengthAsRead);
}

} // namespace

bool CalibrateAreaProtocol::writeCalibrateAreaData(const RuleData& data,
                                                   const TemplateSection& section,
                                                   const WriteContext& context,
                                                   Value& document) const
{
    const CalibrateAreaTemplate& area = *CalibrateAreaTemplate::of(data);
    const Kinds kinds = CalibrateStaffs::kinds(area);
    static const Value nothing;
    const auto writeArea = [&](const EntryWriter& writer, const RuleDataInfo& entry,
                               const Value* asRead, Value& json) {
        writer.writeMadePoints(*area.regionItem(), entry, json);
        if (!area.method().isEmpty())
            json[ConfigMember::kMethod] = Value(area.method());
        StaffsWriter(area, kinds, entry, writer.figures(), asRead ? *asRead : nothing).write(json);
    };
    return put(writeEntries(data, section, context, document, writeArea), section, document);
}
