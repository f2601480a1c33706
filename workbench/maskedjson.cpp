#include "workbench/maskedjson.h"

#include "host/maskedaddress.h"
#include "host/reader.h"
#include "host/value.h"

using kql::Json::Value;
using UICommonMdl::maskedAddress;

namespace
{

void mask(Value& value)
{
    if (value.isString())
        value = maskedAddress(value.asString());
    for (int i = 0; i < value.size(); ++i)
        mask(value.isArray() ? value[i] : value.memberValue(i));
}

} // namespace

QString MaskedJson::text(const QString& json)
{
    if (!json.contains(QStringLiteral("://")))
        return json;
    Value document;
    if (!kql::Json::Reader().parse(json, document))
        return maskedAddress(json);
    mask(document);
    return document.toStyledText();
}
