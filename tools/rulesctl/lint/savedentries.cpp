#include "tools/rulesctl/lint/savedentries.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "tools/rulesctl/lint/jsonpointer.h"

using kql::Json::Value;

SavedEntries::SavedEntries(const RuleParser& parser, const Value& read, const Value& written)
    : m_read(read), m_written(written)
{
    for (const auto& scene : parser.getAllData()) {
        for (const TemplateSection& section : scene->getTemplate()->sections()) {
            const Value* const place = JsonPath(section.parent).find(read);
            if (place && !place->isNull())
                m_sections.insert_or_assign(place, Section{scene.get(), section});
        }
    }
}

/// Of what is read, its position in what is written. What no entry of the scene is, and is kept
/// aside, follows them.
std::map<const Value*, std::size_t> SavedEntries::positions(const Section& section) const
{
    const SceneProtocol& protocol = sceneProtocol(section.data->getSceneType());
    JsonEntries sources = protocol.sources(*section.data, section.section, m_read);
    const JsonEntries aside = protocol.keptAside(*section.data, section.section, m_read);
    sources.insert(sources.end(), aside.begin(), aside.end());
    std::map<const Value*, std::size_t> positions;
    for (std::size_t i = 0; i < sources.size(); ++i)
        positions.emplace(sources[i], i);
    return positions;
}

bool SavedEntries::compare(const Value& place, const std::string& pointer,
                           const ValueChanges& changes, const ValueChanges::Tell& tell) const
{
    const auto found = m_sections.find(&place);
    if (found == m_sections.end())
        return false;
    const Section& section = found->second;
    const SceneProtocol& protocol = sceneProtocol(section.data->getSceneType());
    const JsonEntries listed = protocol.entriesAt(&place);
    const JsonEntries written =
        protocol.entriesAt(JsonPath(section.section.parent).find(m_written));
    if (listed.empty() && !place.isArray())
        return false; // what is no entry is compared as anything else is
    const auto known = positions(section);
    std::size_t next = 0;
    bool isInOrder = true;
    for (std::size_t i = 0; i < listed.size(); ++i) {
        const bool isAlone = listed[i] == &place;
        const std::string at = isAlone ? pointer : JsonPointer::element(pointer, int(i));
        const auto position = known.find(listed[i]);
        const bool isSaved = position != known.end() && position->second < written.size();
        if (!isSaved && !listed[i]->isNull())
            tell(ValueChanges::Kind::Dropped, at, *listed[i], Value());
        if (!isSaved)
            continue;
        isInOrder = isInOrder && position->second >= next;
        next = position->second;
        changes.compareInside(*listed[i], *written[position->second], at);
    }
    if (!isInOrder)
        tell(ValueChanges::Kind::Changed, pointer, place, Value());
    return true;
}
