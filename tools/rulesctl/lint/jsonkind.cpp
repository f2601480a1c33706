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
    {TemplateMember::Text, "string"},   {TemplateMember::Whole | TemplateMember::Cut, "integer"},
    {TemplateMember::Number, "number"}, {TemplateMember::Switch, "boolean"},
    {TemplateMember::List, "array"},    {TemplateMember::Object, "object"},
    {TemplateMember::Null, "null"},
};

/// 5.0 is a whole number.
unsigned kindsOfNumber(double number)
{
    const double cut = std::trunc(number);
    const bool isHeld =
        cut >= std::numeric_limits<int>::min() && cut <= std::numeric_limits<int>::max();
    unsigned kinds = TemplateMember::Number;
    if (isHeld)
        kinds |= cut == number ? TemplateMember::Cut | TemplateMember::Whole : TemplateMember::Cut;
    return kinds;
}

unsigned kindsOf(const Value& value)
{
    if (value.isNumeric())
        return kindsOfNumber(value.asDouble());
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
