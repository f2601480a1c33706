#include "tools/rulesctl/lint/entryplace.h"

#include "Protocol/jsonpath.h"
#include "Protocol/ruleprotocolitem.h"
#include "host/json/value.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

constexpr int kWhole = -1;

EntryPlace placeOf(const JsonPath& path, int index, const Value& prototype)
{
    const Value* const field = path.find(prototype);
    const bool isOpen = !field || field->isNull();
    const int inList = std::max(index, isOpen ? 0 : kWhole);
    const bool isSingle = !isOpen && !field->isArray();
    return {EntryPlace::fieldOf(path.text()), isSingle ? kWhole : inList};
}

} // namespace

EntryPlace EntryPlace::of(const RuleProtocolItem& item, const Value& prototype)
{
    return placeOf(item.path(), item.isFigure() ? kWhole : item.index(), prototype);
}

EntryPlace EntryPlace::of(const JsonPath& path, const Value& prototype)
{
    return placeOf(path, kWhole, prototype);
}

QString EntryPlace::fieldOf(const QString& path)
{
    return path.endsWith(QLatin1String("[]")) ? path.chopped(2) : path;
}
