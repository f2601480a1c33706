#include "Protocol/documentloss.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/detection/detectionentries.h"
#include "Protocol/entryloss.h"
#include "Protocol/jsonpath.h"
#include "Protocol/lanes/lanerules.h"
#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/savenotices.h"
#include "host/json/value.h"

using kql::Json::Value;

namespace
{

// As many as a line can tell.
constexpr int kMostSentences = 64;

/// The entries of a place with the one of the scene that each was read into; null for what is none.
class ReadEntries
{
public:
    ReadEntries(const RuleData& data, const QString& section, const Value& document,
                EntryList::Entries listed)
        : m_listed(std::move(listed)), m_entries(m_listed.size())
    {
        const auto* lanes = dynamic_cast<const LanesTemplate*>(data.getTemplate());
        if (lanes && section == ConfigMember::kRuleSection)
            findRules(data, *lanes, document);
        else
            findEntries(data);
    }

    const EntryList::Entries& listed() const { return m_listed; }
    const RuleDataInfo* entry(std::size_t index) const { return m_entries[index]; }
    /// Whether the one at @p index is an entry, but of none that the scene shows.
    bool isKeptAside(std::size_t index) const { return m_aside.contains(m_listed[index]); }

private:
    void findEntries(const RuleData& data)
    {
        for (const auto& entry : data.getAllData()) {
            const auto index = static_cast<std::size_t>(entry->sourceIndex());
            if (index < m_entries.size())
                m_entries[index] = entry.get();
        }
    }
    void findRules(const RuleData& data, const LanesTemplate& lanes, const Value& document)
    {
        const LaneRules rules(lanes, document);
        QHash<const Value*, const RuleDataInfo*> entryOf;
        for (const auto& entry : data.getAllData())
            entryOf.insert(rules.ruleOf(entry->sourceIndex()), entry.get());
        for (std::size_t i = 0; i < m_listed.size(); ++i)
            m_entries[i] = entryOf.value(m_listed[i]);
        for (const Value* rule : rules.unpaired())
            m_aside.insert(rule);
    }

    EntryList::Entries m_listed;
    std::vector<const RuleDataInfo*> m_entries;
    QSet<const Value*> m_aside;
};

EntryList::Entries listed(const RuleData& data, const Value* place)
{
    return data.getSceneType() == SceneType::Detection ? DetectionEntries::of(place)
                                                       : EntryList::getJsonItemList(place);
}

QString quoted(const QString& path)
{
    return QLatin1Char('"') + path + QLatin1Char('"');
}

} // namespace

DocumentLoss::DocumentLoss(const std::vector<std::unique_ptr<RuleData>>& scenes, const Value& read,
                           const Value& written)
    : m_scenes(scenes), m_read(read), m_written(written)
{
}

QStringList DocumentLoss::tell()
{
    for (const auto& scene : m_scenes) {
        const DataTemplate& dataTemplate = *scene->getTemplate();
        addPlace(*scene, dataTemplate.name(), dataTemplate.parent());
        const auto* lanes = dynamic_cast<const LanesTemplate*>(&dataTemplate);
        if (lanes && lanes->hasRuleItems())
            addPlace(*scene, ConfigMember::kRuleSection, lanes->rulesParent());
    }
    compare(m_read, m_written, {});
    return m_sentences;
}

void DocumentLoss::addPlace(RuleData& data, const QString& section, const QString& parent)
{
    if (const Value* place = JsonPath(parent).probe(m_read))
        m_places.insert({place, {&data, section, parent}});
}

void DocumentLoss::compare(const Value& read, const Value& written, const QString& path)
{
    const auto [first, last] = m_places.equal_range(&read);
    for (auto place = first; place != last; ++place)
        compareEntries(place->second, read);
    if (first != last || m_sentences.size() >= kMostSentences)
        return;
    if (read.isObject() && (written.isObject() || path.isEmpty())) {
        for (int i = 0; i < read.size(); ++i) {
            const std::string_view name = read.memberName(i);
            const QString text = QString::fromUtf8(name.data(), static_cast<int>(name.size()));
            compare(read.memberValue(i), written[name],
                    path.isEmpty() ? text : path + QLatin1Char('.') + text);
        }
        return;
    }
    if (read.isArray() && written.isArray() && read.size() == written.size() &&
        read[0].isObject()) {
        for (int i = 0; i < read.size(); ++i)
            compare(read[i], written[i], path);
        return;
    }
    if (!EntryLoss::isSame(read, written))
        m_sentences.append(
            SaveNotices::tr("%1 is not saved: no attribute names it.").arg(quoted(path)));
}

void DocumentLoss::compareEntries(const Place& place, const Value& read)
{
    RuleData& data = *place.data;
    const ReadEntries entries(data, place.section, m_read, listed(data, &read));
    const EntryList::Entries written = listed(data, JsonPath(place.parent).probe(m_written));
    EntryLoss loss(data, place.section);
    bool hasStrays = entries.listed().empty() && !read.isNull() && !read.empty();
    hasStrays = hasStrays || (!read.isNull() && !read.isArray() && !read.isObject());
    for (std::size_t i = 0; i < entries.listed().size(); ++i) {
        const RuleDataInfo* entry = entries.entry(i);
        const auto position = static_cast<std::size_t>(entry ? data.indexOf(entry->id()) : 0);
        if (entry && position < written.size())
            loss.compare(*entry, *entries.listed()[i], *written[position]);
        else if (!entry && !entries.isKeptAside(i) && !entries.listed()[i]->isNull())
            hasStrays = true;
    }
    if (hasStrays)
        data.saveNotices().add(
            SaveNotices::tr("What is no entry under %1 is not saved.").arg(quoted(place.parent)));
}
