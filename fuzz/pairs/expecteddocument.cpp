#include "fuzz/pairs/expecteddocument.h"

#include "fuzz/pairs/pairmaker.h"

#include <algorithm>
#include <cmath>
#include <limits>

using kql::Json::Value;
using kql::Json::ValueType;
using Type = Attribute::Type;

namespace
{

bool isScalar(const Value& value)
{
    return value.isString() || value.isBool() || value.isNumeric();
}

Value asText(const Value& value)
{
    return value.isString() ? value : Value(value.toCompactText());
}

bool isWholeInt(const Value& value)
{
    const double number = value.asDouble();
    return value.isNumeric() && std::floor(number) == number &&
           number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

Value textsFor(const Value& found, const Value& target)
{
    if (isScalar(found)) {
        Value list;
        list.append(asText(found));
        return target.isArray() ? list : asText(found);
    }
    bool areTexts = found.isArray();
    for (int i = 0; i < found.size() && areTexts; ++i)
        areTexts = isScalar(found[i]);
    if (!areTexts)
        return found;
    Value list(ValueType::Array);
    for (int i = 0; i < found.size(); ++i)
        list.append(asText(found[i]));
    const bool isOne = list.size() == 1 && !target.isArray() && !target.isNull();
    return isOne ? list[0] : list;
}

Value intervalFor(const Value& found, const Value& target)
{
    const auto isTooLong = [](const Value& limit) { return limit.isInt() && !isWholeInt(limit); };
    if (!found.isArray() || found.size() < 2 || isTooLong(found[0]) || isTooLong(found[1]))
        return found;
    if (!target.isArray() && !target.isNull())
        return target;
    Value written = target;
    for (int i = 0; i < 2; ++i) {
        written[i] = Value(isWholeInt(found[i]) ? std::max(0, found[i].asInt()) : 0);
    }
    return written;
}

Value pointsOf(const Value& found)
{
    Value list(ValueType::Array);
    for (int i = 0; i < found.size(); ++i) {
        const Value& pair = found[i];
        if (!pair.isArray() || pair.size() != 2 || !pair[0].isNumeric() || !pair[1].isNumeric())
            continue;
        Value point;
        point.append(Value(pair[0].asInt()));
        point.append(Value(pair[1].asInt()));
        list.append(point);
    }
    return list;
}

/// What stands in @p target's place when @p found was read.
Value written(Type type, const Value& found, const Value& target)
{
    switch (type) {
    case Type::Bool:
        return found.isBool() && target.isArray() ? target : found;
    case Type::Int:
        if (!isWholeInt(found))
            return found;
        return target.isArray() ? target : Value(found.asInt());
    case Type::Float: {
        const bool isExact = found.isDouble() ||
                             (found.isInt() && std::abs(found.asDouble()) <= 9007199254740992.0 &&
                              found.asInt64() != 9007199254740993);
        return found.isNumeric() && isExact && target.isArray() ? target : found;
    }
    case Type::Text:
    case Type::Texts:
        return textsFor(found, target);
    case Type::Interval:
        return intervalFor(found, target);
    case Type::Object:
        return found;
    case Type::None:
        return target;
    case Type::Figure:
        return found.isArray() ? pointsOf(found) : target;
    }
    return target;
}

Value grown(const Section& section, const Value& prototype)
{
    Value entry = prototype;
    for (const Attribute& attribute : section.attributes) {
        Value* field = attribute.fieldIn(entry);
        if (attribute.index >= 0 && field && field->isArray() && attribute.index >= field->size())
            (*field)[attribute.index] = Value();
    }
    return entry;
}

Value empty(const Section& section)
{
    Value entry(ValueType::Object);
    for (const Attribute& attribute : section.attributes)
        attribute.make(entry);
    return entry;
}

void writeRule(const Value& read, int position, Value& entry)
{
    const Value& name = read["Name"];
    const bool isNamed = !name.isNull() && name != Value("");
    const Value given = Value("Rule" + std::to_string(position + 1));
    entry["Name"] = isNamed ? (isScalar(name) ? asText(name) : name) : given;
    const Value& enabled = read["Enable"];
    entry["Enable"] = enabled.isNull()      ? Value(true)
                      : enabled.isNumeric() ? Value(enabled.asBool())
                                            : enabled;
}

Value entryOf(const Section& section, const Value& read, int position, const Value& prototype)
{
    Value entry = prototype;
    for (const Attribute& attribute : section.attributes) {
        const Value* found = attribute.in(read);
        Value* target = attribute.in(entry);
        if (!found || found->isNull())
            continue;
        const Value before = target ? *target : Value();
        if (!target && (!attribute.isPlain() || attribute.type == Type::Figure))
            continue;
        const Value after = written(attribute.type, *found, before);
        if (target)
            *target = after;
        else if (!after.isNull())
            entry[attribute.path] = after;
    }
    if (section.hasNames())
        writeRule(read, position, entry);
    return entry;
}

void write(const Section& section, const Value& config, Value& document)
{
    const Attribute place{Type::None, {}, section.parent, -1, {}};
    Value* target = place.in(document);
    const Value* source = place.in(config);
    const Value* pattern = target->isArray() ? &(*target)[0] : target;
    const Value prototype = pattern->isObject() ? grown(section, *pattern) : empty(section);
    std::vector<Value> entries;
    const int count = source && source->isArray() ? source->size() : source ? 1 : 0;
    for (int i = 0; i < count; ++i) {
        const Value& read = source->isArray() ? (*source)[i] : *source;
        if (read.isObject())
            entries.push_back(entryOf(section, read, int(entries.size()), prototype));
    }
    if (target->isObject() && !entries.empty())
        *target = entries.front();
    if (!target->isArray())
        return;
    target->clear();
    for (const Value& entry : entries)
        target->append(entry);
}

} // namespace

Value ExpectedDocument::of(const PairMaker& pair)
{
    Value document = pair.templateDocument["configTemplate"];
    for (const char* name : {"Lanes", "Fight", "Calibrate"}) {
        if (document.isMember(name))
            document[name] = pair.config[name];
    }
    for (const Section& section : pair.sections)
        write(section, pair.config, document);
    return document;
}

bool ExpectedDocument::isSame(const Value& one, const Value& other)
{
    if (one.isNumeric() && other.isNumeric())
        return one == other || (one.isInt() != other.isInt() && one.asDouble() == other.asDouble());
    if (one.type() != other.type() || one.size() != other.size())
        return false;
    for (int i = 0; i < one.size(); ++i) {
        const Value* match = one.isArray() ? &other[i] : other.find(one.memberName(i));
        if (!match || !isSame(one.isArray() ? one[i] : one.memberValue(i), *match))
            return false;
    }
    return one.isArray() || one.isObject() || one == other;
}
