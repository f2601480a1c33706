#include "Protocol/jsonpath.h"

#include "host/api/dprintlog.h"
#include "host/api/limits.h"
#include "host/json/value.h"

#include <QStringList>

using kql::Json::Value;
using kql::Json::ValueType;

namespace
{

constexpr int kLogLevel = 6;

JsonPath::Part toPart(QString text)
{
    JsonPath::Part part;
    part.isArray = text.endsWith(QLatin1String("[]"));
    if (part.isArray)
        text.chop(2);
    part.name = text.toStdString();
    return part;
}

const Value* descend(const Value& value, const JsonPath::Part& part)
{
    const Value* const member = value.find(part.name);
    if (!member || !part.isArray)
        return member;
    return member->isArray() ? &(*member)[0] : nullptr;
}

void makeIfNull(Value& value, ValueType type)
{
    if (value.isNull())
        value = Value(type);
}

/// The object that a path goes on in behind @p part; null when something else is in its place.
Value* descendCreating(Value& object, const JsonPath::Part& part)
{
    Value* next = &object[part.name];
    if (part.isArray) {
        makeIfNull(*next, ValueType::Array);
        if (!next->isArray())
            return nullptr;
        next = &(*next)[0];
    }
    makeIfNull(*next, ValueType::Object);
    return next->isObject() ? next : nullptr;
}

} // namespace

JsonPath::JsonPath(const QString& text) : m_text(text)
{
    const QStringList names = text.split(QLatin1Char('.'));
    for (const QString& name : names)
        m_parts.push_back(toPart(name));
}

bool JsonPath::isPlainName() const
{
    return m_parts.size() == 1 && !m_parts.front().isArray;
}

const Value* JsonPath::find(const Value& root) const
{
    const Value* value = m_parts.empty() ? nullptr : &root;
    for (std::size_t i = 0; value && i + 1 < m_parts.size(); ++i)
        value = descend(*value, m_parts[i]);
    return value ? value->find(m_parts.back().name) : nullptr;
}

Value* JsonPath::find(Value& root) const
{
    return const_cast<Value*>(find(static_cast<const Value&>(root)));
}

const Value* JsonPath::readPath(const Value& root) const
{
    const Value* const value = find(root);
    if (!value) {
        kql::DPrintLog::instance()->Log("IntelligentRulesUI", kLogLevel, "RuleParser::readPath",
                                        "Protocol\\ruleparser", __LINE__, "ReadPath failed.Path:%d",
                                        m_text);
    }
    return value;
}

Value* JsonPath::readPath(Value& root) const
{
    return const_cast<Value*>(readPath(static_cast<const Value&>(root)));
}

Value* JsonPath::create(Value& root) const
{
    if (m_parts.empty() || m_parts.size() > Limits::kCreatedParts)
        return nullptr;
    makeIfNull(root, ValueType::Object);
    Value* value = root.isObject() ? &root : nullptr;
    for (std::size_t i = 0; value && i + 1 < m_parts.size(); ++i)
        value = descendCreating(*value, m_parts[i]);
    if (!value)
        return nullptr;
    Value& last = (*value)[m_parts.back().name];
    if (m_parts.back().isArray)
        makeIfNull(last, ValueType::Array);
    return &last;
}

JsonEntries JsonPath::entriesIn(const Value& root) const
{
    return getJsonItemList(find(root));
}

const Value* JsonPath::firstEntryIn(const Value& root) const
{
    return objectAt(entriesIn(root), 0);
}

JsonEntries getJsonItemList(const Value* place)
{
    JsonEntries entries;
    if (place && place->isObject())
        entries.push_back(place);
    for (int i = 0; place && place->isArray() && i < place->size(); ++i)
        entries.push_back(&(*place)[i]);
    return entries;
}

const Value* objectAt(const JsonEntries& entries, int index)
{
    if (index < 0 || index >= static_cast<int>(entries.size()))
        return nullptr;
    const Value* entry = entries[static_cast<std::size_t>(index)];
    return entry->isObject() ? entry : nullptr;
}
