#include "Protocol/misfit.h"

#include "Protocol/ruledatainfo.h"
#include "draw/shortenedtext.h"

#include <QCoreApplication>

using kql::Json::Value;

namespace
{

constexpr int kLongestShown = 40;

QString explain(const Value& json)
{
    return QCoreApplication::translate(
               "Misfit", "The configuration has %1 here, which this row cannot show. It is saved "
                         "as it is until the row is edited.")
        .arg(ShortenedText::line(json.toCompactText(), kLongestShown));
}

} // namespace

bool Misfit::isUnder(const RuleDataInfo& entry, const QString& key)
{
    const Value* json = entry.asRead(key);
    const bool isEmptyList = json && json->isArray() && json->empty();
    return json && !isEmptyList && !entry.value(key).isValid();
}

QString Misfit::explained(const RuleDataInfo& entry, const QString& key)
{
    return isUnder(entry, key) ? explain(*entry.asRead(key)) : QString();
}

QString Misfit::explainedName(const RuleDataInfo& entry)
{
    return entry.nameAsRead() ? explain(*entry.nameAsRead()) : QString();
}
