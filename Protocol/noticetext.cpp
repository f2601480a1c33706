#include "Protocol/noticetext.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"

#include <QHash>

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

/// The entries that @p topic still is about; empty for none.
QString entriesOf(const SaveNotices::Topic& topic, const RuleData& data)
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
    return names.join(QStringLiteral(", "));
}

QString sentence(const SaveNotices::Topic& topic, const RuleData& data)
{
    const QString entries = entriesOf(topic, data);
    if (entries.isEmpty())
        return {};
    const bool isOnlyOne = data.getTemplate()->countRange().max < 2;
    const QString subject =
        isOnlyOne ? topic.subject : QStringLiteral("%1 (%2)").arg(topic.subject, entries);
    if (topic.kind == SaveNotices::Kind::Changed)
        return SaveNotices::tr("%1 is not saved as it was read.").arg(subject);
    if (topic.kind == SaveNotices::Kind::Unnamed)
        return SaveNotices::tr("%1 is not saved: no attribute names it.").arg(subject);
    if (topic.kind == SaveNotices::Kind::NotTaken)
        return SaveNotices::tr("%1 has its default in the copy: the value is not possible here.")
            .arg(subject);
    return SaveNotices::tr("%1 cannot be shown; it is saved as it was read until it is edited.")
        .arg(subject);
}

/// One for each copy, which may have left out much.
QStringList leftOutOfCopies(const RuleData& data)
{
    QStringList copies;
    QHash<QString, QStringList> subjects;
    for (const SaveNotices::Topic& topic : data.saveNotices().topics()) {
        if (topic.kind != SaveNotices::Kind::LeftOut)
            continue;
        const QString entries = entriesOf(topic, data);
        if (!entries.isEmpty() && !copies.contains(entries))
            copies.append(entries);
        subjects[entries].append(topic.subject);
    }
    QStringList sentences;
    for (const QString& entries : copies) {
        const QStringList& names = subjects[entries];
        const QString what =
            QStringLiteral("%1 (%2)").arg(names.join(QStringLiteral(", ")), entries);
        sentences.append(
            names.size() == 1
                ? SaveNotices::tr("%1 was left out of the copy: there is no such attribute here.")
                      .arg(what)
                : SaveNotices::tr(
                      "%1 were left out of the copy: there are no such attributes here.")
                      .arg(what));
    }
    return sentences;
}

} // namespace

QStringList NoticeText::of(const RuleData& data)
{
    QStringList all = data.saveNotices().sentences();
    for (const SaveNotices::Topic& topic : data.saveNotices().topics()) {
        if (topic.kind == SaveNotices::Kind::LeftOut)
            continue;
        const QString said = sentence(topic, data);
        if (!said.isEmpty())
            all.append(said);
    }
    all += leftOutOfCopies(data);
    if (data.saveNotices().takesOneEntry() && data.getDataCount() > 1)
        all.append(RuleData::tr("Only %1 is saved: the template has room for one.")
                       .arg(EntryName::button(data, 0)));
    data.collectNotices(all);
    return all;
}
