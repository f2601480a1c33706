#include "tools/rulesctl/lint/jsonkind.h"

#include <cmath>
#include <limits>

using kql::Json::Value;

namespace
{

struct Named {
    unsigned kind;
    const char* name;
};

constexpr Named kNames[] = {
    {TemplateMember::Text, "string"},   {TemplateMember::Whole, "integer"},
    {TemplateMember::Number, "number"}, {TemplateMember::Switch, "boolean"},
    {TemplateMember::List, "array"},    {TemplateMember::Object, "object"},
    {TemplateMember::Null, "null"},
};

/// 5.0 is a whole number.
bool isWhole(const Value& value)
{
    const double number = value.asDouble();
    return value.isNumeric() && std::floor(number) == number &&
           number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

unsigned kindsOf(const Value& value)
{
    if (isWhole(value))
        return TemplateMember::Number | TemplateMember::Whole;
    if (value.isNumeric())
        return TemplateMember::Number;
    if (value.isString())
        return TemplateMember::Text;
    if (value.isBool())
        return TemplateMember::Switch;
    if (value.isArray())
        return TemplateMember::List;
    return value.isObject() ? TemplateMember::Object : TemplateMember::Null;
}

} // namespace

bool JsonKind::isAmong(const Value& value, unsigned kinds)
{
    return (kindsOf(value) & kinds) != 0;
}

QStringList JsonKind::names(unsigned kinds)
{
    QStringList names;
    for (const Named& named : kNames) {
        if (kinds & named.kind)
            names.append(QString::fromLatin1(named.name));
    }
    return names;
}
