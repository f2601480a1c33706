#include "Protocol/documentloss.h"

#include "Protocol/entryloss.h"
#include "Protocol/ruledata.h"
#include "Protocol/savenotices.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "host/json/value.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

// As many as a line can tell.
constexpr int kMostSentences = 64;

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
        for (const TemplateSection& section : scene->getTemplate()->sections()) {
            if (const Value* place = JsonPath(section.parent).find(m_read))
                m_places.insert({place, {scene.get(), section}});
        }
    }
    compare(m_read, m_written, {});
    return m_sentences;
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
    const SceneProtocol& protocol = sceneProtocol(data.getSceneType());
    const JsonEntries sources = protocol.sources(data, place.section, m_read);
    const JsonEntries written = protocol.entriesAt(JsonPath(place.section.parent).find(m_written));
    const JsonEntries listed = protocol.entriesAt(&read);
    JsonEntries aside = protocol.keptAside(data, place.section, m_read);
    std::sort(aside.begin(), aside.end());
    std::map<const Value*, std::size_t> positions;
    for (std::size_t i = 0; i < sources.size(); ++i)
        positions.insert({sources[i], i});
    EntryLoss loss(data, place.section.name);
    const bool isList = read.isArray() || read.isObject();
    bool hasOthers = listed.empty() && !read.isNull() && !(isList && read.empty());
    for (const Value* entry : listed) {
        const auto found = positions.find(entry);
        if (found == positions.end())
            hasOthers = hasOthers ||
                        !(entry->isNull() || std::binary_search(aside.begin(), aside.end(), entry));
        else if (found->second < written.size())
            loss.compare(*data.getAllData()[found->second], *entry, *written[found->second]);
    }
    if (hasOthers)
        data.saveNotices().add(SaveNotices::tr("What is no entry under %1 is not saved.")
                                   .arg(quoted(place.section.parent)));
}
