#include "Protocol/misfit.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/shortenedtext.h"

#include <QCoreApplication>

using kql::Json::Value;

namespace
{

constexpr int kLongestShown = 40;

QString shown(const Value& json)
{
    return ShortenedText::line(json.toCompactText(), kLongestShown);
}

QString explain(const Value& json)
{
    return QCoreApplication::translate(
               "Misfit", "The configuration has %1 here, which this row cannot show. It is saved "
                         "as it is until the row is edited.")
        .arg(shown(json));
}

QString explainLoss(const Value& json)
{
    return QCoreApplication::translate(
               "Misfit", "The configuration has %1 here, which this row cannot show. It is not "
                         "saved as it is.")
        .arg(shown(json));
}

} // namespace

void Misfit::tell(RuleData& data)
{
    using Kind = SaveNotices::Kind;
    for (const auto& entry : data.getAllData()) {
        if (!entry->keepsAnything())
            continue;
        if (entry->nameAsRead())
            data.saveNotices().add(Kind::NameNotShown, QStringLiteral("\"Name\""), *entry);
        if (entry->enabledAsRead())
            data.saveNotices().add(Kind::StateNotShown, QStringLiteral("\"Enable\""), *entry);
        for (const auto& item : data.getTemplate()->items()) {
            if (entry->isMisfit(item->key()))
                data.saveNotices().add(Kind::NotShown, SaveNotices::subject(*item), *entry,
                                       item->key());
        }
    }
}

QString Misfit::explained(const RuleData& data, const RuleDataInfo& entry, const QString& key)
{
    if (!entry.isMisfit(key))
        return {};
    const Value& json = *entry.asRead(key);
    return data.saveNotices().isUnsaved(entry, key) ? explainLoss(json) : explain(json);
}

QString Misfit::explainedName(const RuleDataInfo& entry)
{
    return entry.nameAsRead() ? explain(*entry.nameAsRead()) : QString();
}
