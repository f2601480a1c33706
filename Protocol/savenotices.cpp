#include "Protocol/savenotices.h"

#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"

#include <algorithm>
#include <utility>

namespace
{

// As many as a line can tell.
constexpr std::size_t kMostTopics = 64;
// No device has more to tell; keeps absurd documents from filling the memory.
constexpr int kMostFound = 100000;

bool isOfCopy(SaveNotices::Kind kind)
{
    return kind == SaveNotices::Kind::LeftOut || kind == SaveNotices::Kind::NotTaken;
}

QString nameOf(SaveNotices::Kind kind, const QString& subject)
{
    return QString::number(static_cast<int>(kind)) + subject;
}

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
    const QString name = nameOf(kind, subject);
    auto topic = m_topicOf.constFind(name);
    if (topic == m_topicOf.constEnd()) {
        if (!hasRoomFor(kind))
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

/// What was left out of the last copies does not keep out the rest, nor the next ones.
bool SaveNotices::hasRoomFor(Kind kind)
{
    const auto isLeftOut = [](const Topic& topic) { return isOfCopy(topic.kind); };
    const auto leftOut =
        static_cast<std::size_t>(std::count_if(m_topics.begin(), m_topics.end(), isLeftOut));
    if (!isOfCopy(kind))
        return m_topics.size() - leftOut < kMostTopics;
    if (leftOut >= kMostTopics)
        forgetLeftOut();
    return true;
}

void SaveNotices::forgetLeftOut()
{
    std::vector<Topic> kept;
    m_topicOf.clear();
    for (Topic& topic : m_topics) {
        if (isOfCopy(topic.kind)) {
            m_count -= static_cast<int>(topic.found.size());
            continue;
        }
        m_topicOf.insert(nameOf(topic.kind, topic.subject), kept.size());
        kept.push_back(std::move(topic));
    }
    m_topics = std::move(kept);
}

bool SaveNotices::isUnsaved(const RuleDataInfo& entry, const QString& key) const
{
    return m_unsavedKeys.contains(key) || m_changed.contains({entry.id(), key});
}

QString SaveNotices::subject(const RuleProtocolItem& item)
{
    return item.caption().isEmpty() ? item.key() : item.caption();
}
