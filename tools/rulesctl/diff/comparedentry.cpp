#include "tools/rulesctl/diff/comparedentry.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/entryclip.h"
#include "Protocol/entryname.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"

#include <cmath>
#include <map>
#include <string>

using kql::Json::Value;

namespace
{

constexpr double kLargestWhole = 9007199254740992; ///< up to which doubles have all whole numbers

Value plainNumber(const Value& number)
{
    const double exact = number.asDouble();
    return number.isInt() || exact != std::trunc(exact) || std::abs(exact) > kLargestWhole
               ? number
               : Value(static_cast<qint64>(exact));
}

/// What is the same by value, as 1 and 1.0, {"a":1,"b":2} and {"b":2,"a":1}, or null and no member,
/// becomes the same.
Value plain(const Value& value)
{
    if (value.isNumeric())
        return plainNumber(value);
    if (value.isArray()) {
        Value list(kql::Json::ValueType::Array);
        for (int i = 0; i < value.size(); ++i)
            list.append(plain(value[i]));
        return list;
    }
    if (!value.isObject())
        return value;
    std::map<std::string, Value> members;
    for (int i = 0; i < value.size(); ++i) {
        if (!value.memberValue(i).isNull())
            members.emplace(value.memberName(i), plain(value.memberValue(i)));
    }
    Value object(kql::Json::ValueType::Object);
    for (auto& [name, member] : members)
        object[name] = std::move(member);
    return object;
}

const RuleProtocolItem* itemOf(const RuleData& data, const Value& json)
{
    return data.getTemplate()->findItem(json[EntryClip::kKey].asString());
}

} // namespace

/// A copy says all of it by keys.
ComparedEntry ComparedEntry::of(const RuleData& data, int position)
{
    const RuleDataInfo& entry = *data.getAllData()[static_cast<std::size_t>(position)];
    const Value clip = EntryClip::of(data, entry, {}, nullptr);
    ComparedEntry compared;
    // The global section has no buttons.
    if (data.getSceneType() != SceneType::Global)
        compared.name = EntryName::button(data, position);
    compared.ownName = clip[ConfigMember::kName];
    compared.enabled = clip[ConfigMember::kEnable];
    const Value& attributes = clip[EntryClip::kAttributes];
    for (int i = 0; i < attributes.size(); ++i)
        compared.attributes.push_back(
            {itemOf(data, attributes[i]), attributes[i][EntryClip::kValue]});
    const Value& figures = clip[EntryClip::kFigures];
    for (int i = 0; i < figures.size(); ++i) {
        const auto points = PointConversion::toPoints(figures[i][EntryClip::kPoints]);
        if (!points.isEmpty())
            compared.figures.push_back(
                {itemOf(data, figures[i]), points,
                 PointConversion::toPoints(figures[i][EntryClip::kDirections])});
    }
    return compared;
}

QString ComparedEntry::content() const
{
    Value all(kql::Json::ValueType::Array);
    all.append(enabled);
    for (const Attribute& attribute : attributes)
        all.append(attribute.value);
    for (const Figure& figure : figures) {
        all.append(Value(figure.item->key()));
        all.append(PointConversion::toJson(figure.points));
        all.append(PointConversion::toJson(figure.directions));
    }
    return plain(all).toCompactText();
}

std::vector<const ComparedEntry::Figure*> ComparedEntry::figuresOf(const QString& key) const
{
    std::vector<const Figure*> found;
    for (const Figure& figure : figures) {
        if (figure.item->key() == key)
            found.push_back(&figure);
    }
    return found;
}
