#include "Protocol/savenotices.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/misfit.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"

namespace
{

// As many as a line can tell, and as many entries as are named in one sentence.
constexpr std::size_t kMostTopics = 64;
constexpr int kMostNames = 3;
// No device has more to tell; keeps absurd documents from filling the memory.
constexpr int kMostFound = 100000;

} // namespace

void SaveNotices::addUnsaved(const RuleProtocolItem& item, const QString& sentence)
{
    m_unsavedKeys.insert(item.key());
    if (!m_sentences.contains(sentence))
        add(sentence);
}

void SaveNotices::add(Kind kind, const QString& subject, const RuleDataInfo& entry,
                      const QString& key)
{
    if (m_count >= kMostFound || (!key.isEmpty() && m_unsavedKeys.contains(key)))
        return;
    if (kind == Kind::Changed)
        m_changed.insert({entry.id(), key});
    const QString name = QString::number(static_cast<int>(kind)) + subject;
    auto topic = m_topicOf.constFind(name);
    if (topic == m_topicOf.constEnd()) {
        if (m_topics.size() >= kMostTopics)
            return;
        topic = m_topicOf.insert(name, m_topics.size());
        m_topics.push_back({kind, subject, key, {}});
    }
    std::vector<Found>& found = m_topics[*topic].found;
    if (!found.empty() && found.back().dataId == entry.id())
        return;
    found.push_back({entry.id(), entry.value(key)});
    ++m_count;
}

bool SaveNotices::isUnsaved(const RuleDataInfo& entry, const QString& key) const
{
    return m_unsavedKeys.contains(key) || m_changed.contains({entry.id(), key});
}

QString SaveNotices::subject(const RuleProtocolItem& item)
{
    return item.caption().isEmpty() ? item.key() : item.caption();
}

QStringList SaveNotices::sentences(const RuleData& data) const
{
    QStringList all = m_sentences;
    for (const Topic& topic : m_topics) {
        const QString said = sentence(topic, data);
        if (!said.isEmpty())
            all.append(said);
    }
    return all;
}

bool SaveNotices::stands(const Topic& topic, const Found& found, const RuleData& data)
{
    const RuleDataInfo* const entry = data.getDataInfo(found.dataId);
    if (!entry)
        return false;
    switch (topic.kind) {
    case Kind::NotShown:
        return Misfit::isUnder(*entry, topic.key) &&
               !data.saveNotices().isUnsaved(*entry, topic.key);
    case Kind::NameNotShown:
        return entry->nameAsRead();
    case Kind::StateNotShown:
        return entry->enabledAsRead();
    case Kind::Changed:
    case Kind::Unnamed:
        break;
    }
    return entry->value(topic.key) == found.value;
}

QString SaveNotices::sentence(const Topic& topic, const RuleData& data)
{
    QStringList names;
    for (const Found& found : topic.found) {
        if (names.size() > kMostNames)
            break;
        if (stands(topic, found, data))
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
    if (topic.kind == Kind::Changed)
        return tr("%1 is not saved as it was read.").arg(subject);
    if (topic.kind == Kind::Unnamed)
        return tr("%1 is not saved: no attribute names it.").arg(subject);
    return tr("%1 cannot be shown; it is saved as it was read until it is edited.").arg(subject);
}
