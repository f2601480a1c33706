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

QString explain(const Value& json, bool isLost)
{
    constexpr char kKept[] = QT_TRANSLATE_NOOP(
        "Misfit", "The configuration has %1 here, which this row cannot show. It is saved as it is "
                  "until the row is edited.");
    constexpr char kLost[] = QT_TRANSLATE_NOOP(
        "Misfit", "The configuration has %1 here, which this row cannot show. It is not saved as "
                  "it is.");
    return QCoreApplication::translate("Misfit", isLost ? kLost : kKept)
        .arg(ShortenedText::line(json.toCompactText(), kLongestShown));
}

} // namespace

void Misfit::tell(RuleData& data)
{
    for (const auto& entry : data.getAllData())
        tell(data, *entry);
}

void Misfit::tell(RuleData& data, const RuleDataInfo& entry)
{
    using Kind = SaveNotices::Kind;
    if (!entry.keepsAnything())
        return;
    SaveNotices& notices = data.saveNotices();
    if (entry.nameAsRead())
        notices.add(Kind::NameNotShown, QStringLiteral("\"Name\""), entry);
    if (entry.enabledAsRead())
        notices.add(Kind::StateNotShown, QStringLiteral("\"Enable\""), entry);
    for (const auto& item : data.getTemplate()->items()) {
        if (entry.isMisfit(item->key()))
            notices.add(Kind::NotShown, SaveNotices::subject(*item), entry, item->key());
    }
}

QString Misfit::explained(const RuleData& data, const RuleDataInfo& entry, const QString& key)
{
    if (!entry.isMisfit(key))
        return {};
    return explain(*entry.asRead(key), data.saveNotices().isUnsaved(entry, key));
}

QString Misfit::explainedName(const RuleDataInfo& entry)
{
    return entry.nameAsRead() ? explain(*entry.nameAsRead(), false) : QString();
}
