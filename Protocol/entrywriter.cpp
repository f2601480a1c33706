#include "Protocol/entrywriter.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valueconversion.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"

#include <QHash>
#include <QPair>
#include <utility>

using kql::Json::Value;

namespace
{

/// Makes room in one entry for items that are elements of array-valued fields.
class ElementMaker
{
public:
    /// The index 0 alone does not make the field an array: devices' templates give it for single
    /// values, too.
    void make(Value& field, int index)
    {
        const bool isElement = field.isArray() || (field.isNull() && index > 0);
        if (!isElement || index < field.size() || index - field.size() >= m_room)
            return;
        m_room -= index - field.size() + 1;
        field[index] = Value();
    }

private:
    // More than any device has in the fields of an entry; keeps absurd indexes, of which a
    // template may give many, from filling the memory.
    int m_room = 1024;
};

void writePointToJson(const QVector<QPoint>& points, const JsonPath& path, Value& json)
{
    if (Value* target = path.readPath(json))
        *target = PointConversion::toJson(points);
}

} // namespace

/// One entry being written.
struct EntryWriter::Pass {
    const RuleDataInfo& entry;
    const Value* asRead;
    Value& json;
    ElementMaker& elements;
};

EntryWriter::EntryWriter(const RuleData& data, const QString& section) : m_figures(data)
{
    for (const auto& item : data.getTemplate()->items()) {
        if (item->templateName() == section && !item->path().text().isEmpty())
            m_targets.push_back({item.get(), EntryKey(item->key()), false});
    }
    markSharedPlaces();
}

void EntryWriter::markSharedPlaces()
{
    QHash<QPair<QString, int>, int> users;
    for (const Target& target : m_targets)
        ++users[{target.item->path().text(), target.item->index()}];
    for (Target& target : m_targets)
        target.isShared = users.value({target.item->path().text(), target.item->index()}) > 1;
}

Value EntryWriter::emptyEntry() const
{
    Value entry(kql::Json::ValueType::Object);
    ElementMaker elements;
    for (const Target& target : m_targets) {
        Value* field = target.item->path().create(entry);
        if (field && !target.item->isFigure())
            elements.make(*field, target.item->index());
        if (target.item->drawType() == BaseDrawType::Parallelogram)
            ConfigMember::directionPath().create(entry);
    }
    return entry;
}

void EntryWriter::write(const RuleDataInfo& entry, const Value* asRead, Value& json) const
{
    ElementMaker elements;
    const Pass pass{entry, asRead, json, elements};
    // What does not apply goes first, so that the row that the operator sees wins.
    const auto isWrittenFirst = [&entry](const Target& target) {
        return target.isShared && !entry.isValid(target.key);
    };
    for (const Target& target : m_targets) {
        if (isWrittenFirst(target))
            writeItem(target, pass);
    }
    for (const Target& target : m_targets) {
        if (!isWrittenFirst(target))
            writeItem(target, pass);
    }
}

void EntryWriter::writeItem(const Target& target, const Pass& pass) const
{
    if (target.item->isFigure())
        writeFigure(*target.item, pass);
    else
        writeValueToJson(target, pass);
}

void EntryWriter::writeValueToJson(const Target& source, const Pass& pass)
{
    const RuleProtocolItem& item = *source.item;
    const QVariant& value = pass.entry.value(source.key);
    const bool needsSource =
        pass.asRead && (item.valueType() == ValueType::Float || item.index() >= 0);
    const Value* asRead = needsSource ? item.path().probe(*pass.asRead) : nullptr;
    if (Value* target = item.path().readPath(pass.json)) {
        if (item.index() >= 0 && target->isNull() && asRead && asRead->isArray())
            pass.elements.make(*target = Value(kql::Json::ValueType::Array), item.index());
        ValueConversion::toJson(value, item, *target, asRead);
        return;
    }
    if (!item.path().isPlainName())
        return;
    Value created;
    ValueConversion::toJson(value, item, created, asRead);
    if (!created.isNull())
        pass.json[item.path().parts().front().name] = std::move(created);
}

void EntryWriter::writeFigure(const RuleProtocolItem& item, const Pass& pass) const
{
    const DrawItem* drawItem = m_figures.first(pass.entry.id(), item);
    if (!drawItem)
        return;
    writePointToJson(drawItem->getPoints(), item.path(), pass.json);
    if (drawItem->drawType() == BaseDrawType::Parallelogram)
        writePointToJson(drawItem->figure()->directionPoints(), ConfigMember::directionPath(),
                         pass.json);
}
