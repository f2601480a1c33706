#include "fuzz/fault.h"
#include "fuzz/harnesses.h"
#include "fuzz/inputbytes.h"

#include "Protocol/jsonpath.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valueconversion.h"
#include "host/json/reader.h"
#include "host/json/value.h"

#include <QSize>

using Fuzz::require;
using kql::Json::Value;

namespace
{

constexpr ValueType kTypes[] = {ValueType::None,  ValueType::Bool,   ValueType::Int,
                                ValueType::Float, ValueType::String, ValueType::ArrayInt,
                                ValueType::Point, ValueType::Object};
constexpr int kIndexes[] = {-1, 0, 1, 1000000000};

/// Empty ends of a range are not kept: a device gets 0 for them.
bool isKept(const QVariant& value)
{
    const QSize range = value.toSize();
    return value.type() != QVariant::Size || (range.width() >= 0 && range.height() >= 0);
}

void requireConversion(const Value& found, ValueType type, int index)
{
    RuleProtocolItem item;
    item.setValueType(type);
    item.setIndex(index);
    const QVariant value = ValueConversion::parseJsonToValue(found, item);
    Value target = found;
    ValueConversion::toJson(value, item, target, &found);
    if (!isKept(value))
        return;
    const QVariant again = ValueConversion::parseJsonToValue(target, item);
    require(again == value, "a value of type " + std::to_string(int(type)) + " was " +
                                value.toString().toStdString() + " and is " +
                                again.toString().toStdString());
}

void requirePoints(const Value& found)
{
    const QVector<QPoint> points = PointConversion::toPoints(found);
    require(points.size() <= found.size(), "points out of nothing");
    require(PointConversion::toPoints(PointConversion::toJson(points)) == points,
            "points are read otherwise than written");
}

void requireConversions(const Value& found)
{
    requirePoints(found);
    for (const ValueType type : kTypes) {
        for (const int index : kIndexes)
            requireConversion(found, type, index);
    }
}

void requireCreation(const JsonPath& path, const Value& document)
{
    Value grown = document;
    const Value* created = path.create(grown);
    if (!created)
        return;
    require(path.find(grown) == created, "what a path made is not found by it");
    const Value before = grown;
    path.create(grown);
    require(grown == before, "a path makes something twice");
    Value read;
    const bool readable = kql::Json::Reader().parse(std::string_view(grown.toStyledString()), read);
    // A document at the limit of depth may be taken beyond it.
    require(!readable || read == grown, "a document is read otherwise than written");
}

void followPath(const QString& text, const Value& document)
{
    const JsonPath path(text);
    require(path.text() == text, "a path changed its text");
    const Value* found = path.find(document);
    require(path.readPath(document) == found, "a path is read in two ways");
    if (found)
        requireConversions(*found);
    requireCreation(path, document);
}

} // namespace

void Fuzz::paths(std::string_view input)
{
    const auto parts = split(input, kSeparator);
    Value document;
    kql::Json::Reader reader;
    const bool read = parts.size() > 1 && reader.parse(parts[1], document);
    require(read || document.isNull(), "a refused document left something");
    constexpr std::size_t kMostPaths = 64;
    auto lines = split(parts.front(), "\n");
    lines.resize(qMin(lines.size(), kMostPaths));
    for (const std::string_view line : lines)
        followPath(QString::fromUtf8(line.data(), static_cast<int>(line.size())), document);
}
