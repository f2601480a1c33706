#include "Protocol/noticetext.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"

namespace
{

// As many entries as are named in one sentence.
constexpr int kMostNames = 3;

bool stands(const SaveNotices::Topic& topic, const SaveNotices::Found& found, const RuleData& data)
{
    const RuleDataInfo* const entry = data.getDataInfo(found.dataId);
    if (!entry)
        return false;
    switch (topic.kind) {
    case SaveNotices::Kind::NotShown:
        return entry->isMisfit(topic.key) && !data.saveNotices().isUnsaved(*entry, topic.key);
    case SaveNotices::Kind::NameNotShown:
        return entry->nameAsRead();
    case SaveNotices::Kind::StateNotShown:
        return entry->enabledAsRead();
    case SaveNotices::Kind::Changed:
    case SaveNotices::Kind::Unnamed:
    case SaveNotices::Kind::LeftOut:
    case SaveNotices::Kind::NotTaken:
        break;
    }
    return entry->value(topic.key) == found.value;
}

QString sentence(const SaveNotices::Topic& topic, const RuleData& data)
{
    QStringList names;
    for (const SaveNotices::Found& found : topic.found) {
        if (names.size() <= kMostNames && stands(topic, found, data))
            names.append(EntryName::button(data, data.indexOf(found.dataId)));
    }
    if (names.isEmpty())
        return {};
    if (names.size() > kMostNames)
        names.last() = QStringLiteral("…");
    const bool isOnlyOne = data.getTemplate()->countRange().max < 2;
    const QString subject =
        isOnlyOne ? topic.subject
                  : QStringLiteral("%1 (%2)").arg(topic.subject, names.join(QStringLiteral(", ")));
    if (topic.kind == SaveNotices::Kind::Changed)
        return SaveNotices::tr("%1 is not saved as it was read.").arg(subject);
    if (topic.kind == SaveNotices::Kind::Unnamed)
        return SaveNotices::tr("%1 is not saved: no attribute names it.").arg(subject);
    if (topic.kind == SaveNotices::Kind::LeftOut)
        return SaveNotices::tr("%1 was left out of the copy: there is no such attribute here.")
            .arg(subject);
    if (topic.kind == SaveNotices::Kind::NotTaken)
        return SaveNotices::tr("%1 has its default in the copy: the value is not possible here.")
            .arg(subject);
    return SaveNotices::tr("%1 cannot be shown; it is saved as it was read until it is edited.")
        .arg(subject);
}

} // namespace

QStringList NoticeText::of(const RuleData& data)
{
    QStringList all = data.saveNotices().sentences();
    for (const SaveNotices::Topic& topic : data.saveNotices().topics()) {
        const QString said = sentence(topic, data);
        if (!said.isEmpty())
            all.append(said);
    }
    if (data.saveNotices().takesOneEntry() && data.getDataCount() > 1)
        all.append(RuleData::tr("Only %1 is saved: the template has room for one.")
                       .arg(EntryName::button(data, 0)));
    data.collectNotices(all);
    return all;
}
