#pragma once

#include "Protocol/ruletypes.h"
#include "Protocol/savenotices.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <limits>
#include <memory>
#include <vector>

class DataTemplate;
class DrawItem;
class DrawScene;
class RuleDataInfo;
class RuleProtocolItem;

/**
 * The edited state of one scene: its template, its canvas with the figures, and its entries.
 * Figures belong to entries by the entry's id.
 */
class RuleData
{
    Q_DECLARE_TR_FUNCTIONS(RuleData)

public:
    using Entries = std::vector<std::unique_ptr<RuleDataInfo>>;

    RuleData();
    virtual ~RuleData();
    /// Copies entries (same ids), template and figures into a canvas of its own.
    RuleData(const RuleData& other);
    RuleData& operator=(const RuleData& other);

    /// Checks whether the scene may be saved; on failure @p message says what to mend.
    virtual bool checkData(QString& message) const;
    /// What was found when the scene was read that a save leaves out.
    SaveNotices& saveNotices() { return m_saveNotices; }
    const SaveNotices& saveNotices() const { return m_saveNotices; }
    /// Whether a save writes the first entry alone.
    void setTakesOneEntry(bool takesOne) { m_takesOneEntry = takesOne; }
    /// What a save would leave out of the document as it is now, a sentence each.
    QStringList notices() const;
    /// Adds what only a scene of this kind has to say of that.
    virtual void collectNotices(QStringList& notices) const;

    SceneType getSceneType() const { return m_sceneType; }
    void setSceneType(SceneType type) { m_sceneType = type; }
    DataTemplate* getTemplate() const { return m_template.get(); }
    void setTemplate(std::unique_ptr<DataTemplate> dataTemplate);
    DrawScene* getDrawScene() const { return m_drawScene.get(); }
    /// The word for one entry in messages, button texts and labels.
    const QString& getRuleFucTitle() const { return m_ruleFucTitle; }
    void setRuleFucTitle(const QString& title) { m_ruleFucTitle = title; }

    /// A new entry with a fresh id and the default values, not yet in the list; null without a
    /// template. Defaults are taken from the template when the first entry is made.
    std::unique_ptr<RuleDataInfo> newDataInfo() const;
    /// An entry of the template's default values alone, which newDataInfo() starts from.
    const RuleDataInfo& defaults() const;
    RuleDataInfo* addDataInfo(std::unique_ptr<RuleDataInfo> entry);
    /// Makes room for @p count entries more.
    void reserve(std::size_t count);
    /// The entry with that id; null when there is none.
    RuleDataInfo* getDataInfo(int id) const;
    int getDataCount() const { return static_cast<int>(m_entries.size()); }
    const Entries& getAllData() const { return m_entries; }
    /// Removes an entry. The selected id stays even when it was this entry's, so that callers
    /// select anew; it is reset only when no such entry exists.
    void removeDataInfo(int id);
    /// Position of the entry in the list; -1 when there is none.
    int indexOf(int id) const;

    /// What may be read into it still, in characters of text.
    void setRoom(qint64 room) { m_room = room; }
    /// False when there is less room than @p size, and from then on.
    bool takeRoom(qint64 size)
    {
        if (m_room >= 0)
            m_room -= size;
        return m_room >= 0;
    }
    /// Whether the configuration asked for more than there was room for.
    bool isCutShort() const { return m_room < 0; }

    void setSelectedDataId(int id);
    int getSelectedDataId() const { return m_selectedDataId; }
    RuleDataInfo* selectedDataInfo() const { return getDataInfo(m_selectedDataId); }

    /// The figures that an entry has for a template item: by kind, and where the template has
    /// several items of that kind, those read or drawn for this one.
    QList<DrawItem*> figuresOf(int dataId, const RuleProtocolItem& item) const;

private:
    /// Where the entry with an id is in the list.
    struct Place {
        int id;
        int position;
    };

    void copyFrom(const RuleData& other);
    void findPlaces() const;

    SceneType m_sceneType = SceneType::None;
    std::unique_ptr<DataTemplate> m_template;
    std::unique_ptr<DrawScene> m_drawScene;
    Entries m_entries;
    mutable std::vector<Place> m_places; ///< of all entries by id; empty until one is looked for
    mutable std::unique_ptr<RuleDataInfo> m_defaults; ///< made when needed
    int m_selectedDataId = 0;
    qint64 m_room = std::numeric_limits<qint64>::max();
    QString m_ruleFucTitle;
    SaveNotices m_saveNotices;
    bool m_takesOneEntry = false;
};
