#include "workbench/compactjson.h"

#include "host/value.h"

using kql::Json::Value;

namespace
{

// Texts and numbers are written on one line anyway; their line breaks are escaped.
QByteArray scalar(const Value& value)
{
    return QByteArray::fromStdString(value.toStyledString()).trimmed();
}

QByteArray member(const Value& object, int position)
{
    return scalar(Value(object.memberName(position))) + ':' +
           CompactJson::text(object.memberValue(position));
}

} // namespace

QByteArray CompactJson::text(const Value& value)
{
    if (!value.isArray() && !value.isObject())
        return scalar(value);
    QByteArray result(1, value.isArray() ? '[' : '{');
    for (int i = 0; i < value.size(); ++i) {
        if (i > 0)
            result += ',';
        result += value.isArray() ? text(value[i]) : member(value, i);
    }
    return result + (value.isArray() ? ']' : '}');
}
