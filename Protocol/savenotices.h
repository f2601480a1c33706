#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <vector>

class RuleDataInfo;
class RuleProtocolItem;

/// What a save leaves out of what one scene was read from. NoticeText says it to the operator.
class SaveNotices
{
    Q_DECLARE_TR_FUNCTIONS(SaveNotices)

public:
    /// Why something of an entry is told.
    enum class Kind {
        NotShown, ///< no row can show it; it is saved as it was read
        NameNotShown,
        StateNotShown,
        Changed,  ///< it is saved, but not as it was read
        Unnamed,  ///< no attribute names it
        LeftOut,  ///< it was copied from where there is more
        NotTaken, ///< it was copied from where other values are possible
    };

    /// @p item has no place, and nothing else is told of it; @p sentence says why.
    void addUnsaved(const RuleProtocolItem& item, const QString& sentence);
    void add(const QString& sentence) { m_sentences.append(sentence); }
    /// Tells @p subject of @p entry; @p key is that of the attribute that it belongs to, if any.
    void add(Kind kind, const QString& subject, const RuleDataInfo& entry,
             const QString& key = QString());

    /// Tells no longer what copies lack.
    void forgetLeftOut();

    /// Whether it was told that what @p entry was read with under @p key is not saved.
    bool isUnsaved(const RuleDataInfo& entry, const QString& key) const;

    /// The caption of @p item, or its key where it has none.
    static QString subject(const RuleProtocolItem& item);

    struct Found {
        int dataId;
        QVariant value; ///< under the topic's key, when it was read
    };
    struct Topic {
        Kind kind;
        QString subject;
        QString key;
        std::vector<Found> found;
    };

    /// What is told of the scene as a whole.
    const QStringList& sentences() const { return m_sentences; }
    const std::vector<Topic>& topics() const { return m_topics; }
    /// Whether a save writes the first entry alone.
    bool takesOneEntry() const { return m_takesOneEntry; }
    void setTakesOneEntry(bool takesOne) { m_takesOneEntry = takesOne; }

private:
    bool hasRoomFor(Kind kind);
    QStringList m_sentences;
    QSet<QString> m_unsavedKeys;
    QSet<QPair<int, QString>> m_changed; ///< by entry and key
    std::vector<Topic> m_topics;
    QHash<QString, std::size_t> m_topicOf; ///< by kind and subject
    int m_count = 0;
    bool m_takesOneEntry = false;
};
