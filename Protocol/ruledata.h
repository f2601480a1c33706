#pragma once

#include "Protocol/checkfault.h"
#include "Protocol/entryfigures.h"
#include "Protocol/ruletypes.h"
#include "Protocol/savenotices.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <limits>
#include <memory>
#include <optional>
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
    /// What checkData() finds, with its place; nothing, too, without template or canvas.
    std::optional<CheckFault> firstFault() const;
    /// What is left of a fault that was found: nothing once it was corrected or its entry is gone.
    std::optional<CheckFault> leftOf(const CheckFault& fault) const;
    /// What was found when the scene was read that a save leaves out.
    SaveNotices& saveNotices() { return m_saveNotices; }
    const SaveNotices& saveNotices() const { return m_saveNotices; }
    /// Adds what only a scene of this kind has to say of that, a sentence each.
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
    /// The entry with that id; null when there is none.
    RuleDataInfo* getDataInfo(int id) const;
    int getDataCount() const { return static_cast<int>(m_entries.size()); }
    const Entries& getAllData() const { return m_entries; }
    void setEntries(Entries entries);
    /// Becomes as it was before anything was read: template and words stay.
    void forgetEntries();
    /// Removes an entry. The selected id stays even when it was this entry's, so that callers
    /// select anew; it is reset only when no such entry exists.
    void removeDataInfo(int id);
    /// Position of the entry in the list; -1 when there is none.
    int indexOf(int id) const;

    /// How much text may be read into it still, in characters.
    void setTextLeft(qint64 length) { m_textLeft = length; }
    /// Takes @p length off that; false when it is more than there is, and from then on.
    bool takeText(qint64 length)
    {
        if (m_textLeft >= 0)
            m_textLeft -= length;
        return m_textLeft >= 0;
    }
    /// Whether the configuration asked for more than there was.
    bool isOverdrawn() const { return m_textLeft < 0; }

    /// Names of rules that belong to none of the entries, and that a save keeps.
    const QStringList& namesKeptAside() const { return m_namesKeptAside; }
    void setNamesKeptAside(const QStringList& names) { m_namesKeptAside = names; }

    void setSelectedDataId(int id);
    int getSelectedDataId() const { return m_selectedDataId; }
    RuleDataInfo* selectedDataInfo() const { return getDataInfo(m_selectedDataId); }

    /// The figures that an entry has for a template item: by kind, and where the template has
    /// several items of that kind, those read or drawn for this one.
    EntryFigures::Figures figuresOf(int dataId, const RuleProtocolItem& item) const;
    /// The scene's figures, for a template and as long as neither changes.
    EntryFigures figures() const { return {*m_template, *m_drawScene}; }

private:
    void copyFrom(const RuleData& other);

    SceneType m_sceneType = SceneType::None;
    std::unique_ptr<DataTemplate> m_template;
    std::unique_ptr<DrawScene> m_drawScene;
    Entries m_entries;
    mutable std::unique_ptr<RuleDataInfo> m_defaults; ///< made when needed
    int m_selectedDataId = 0;
    qint64 m_textLeft = std::numeric_limits<qint64>::max();
    QString m_ruleFucTitle;
    SaveNotices m_saveNotices;
    QStringList m_namesKeptAside;
};
