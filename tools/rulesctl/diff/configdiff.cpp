#include "tools/rulesctl/diff/configdiff.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "tools/rulesctl/diff/changetext.h"
#include "tools/rulesctl/diff/comparedentry.h"
#include "tools/rulesctl/diff/entrychanges.h"
#include "tools/rulesctl/diff/entrypairing.h"
#include "tools/rulesctl/diff/entryplaces.h"

#include <algorithm>
#include <iterator>

using kql::Json::Value;

namespace
{

using Entries = std::vector<ComparedEntry>;

Entries entriesOf(const RuleData& data)
{
    Entries entries;
    for (int i = 0; i < data.getDataCount(); ++i)
        entries.push_back(ComparedEntry::of(data, i));
    return entries;
}

EntryPairing::Entries identities(const Entries& entries)
{
    EntryPairing::Entries identities;
    for (const ComparedEntry& entry : entries) {
        const std::optional<QString> name =
            entry.ownName.isString() ? std::optional(entry.ownName.asString()) : std::nullopt;
        identities.push_back({name, entry.content()});
    }
    return identities;
}

QStringList parentsOf(const RuleParser& scenes)
{
    QStringList parents;
    for (const auto& data : scenes.getAllData()) {
        for (const TemplateSection& section : data->getTemplate()->sections()) {
            if (!section.parent.isEmpty())
                parents.append(section.parent);
        }
    }
    return parents;
}

Change otherChange(const OtherMembers::Place& place, bool isSaved)
{
    Change change{Change::Kind::Other};
    change.from = place.a ? *place.a : Value();
    change.to = place.b ? *place.b : Value();
    change.pointer = place.b ? place.pointerB : place.pointerA;
    change.isSaved = isSaved;
    change.text = ChangeText::of(change, nullptr);
    return change;
}

void comparePlaces(const EntryPlaces::Place& a, const EntryPlaces::Place& b,
                   const NamedPaths& named, bool isSaved, std::vector<Change>& changes)
{
    OtherMembers(named, [&](const OtherMembers::Place& place) {
        changes.push_back(otherChange(place, isSaved));
    }).compare({a.json, b.json, a.pointer, b.pointer});
}

/// Whether @p pointer leads in @p entry to the length of a staff that is not the first of its type,
/// whose length a row shows.
bool isFurtherLength(const QString& pointer, const Value* entry)
{
    const QStringList steps = pointer.split(QLatin1Char('/'));
    const auto isCalled = [&steps](int position, std::string_view name) {
        return steps[position].toStdString() == name;
    };
    if (!entry || steps.size() != 4 || !isCalled(1, ConfigMember::kStaffs) ||
        !isCalled(3, ConfigMember::kLength))
        return false;
    const Value& staffs = (*entry)[ConfigMember::kStaffs];
    const int position = steps[2].toInt();
    for (int i = 0; i < position; ++i) {
        if (staffs[i][ConfigMember::kType] == staffs[position][ConfigMember::kType])
            return true;
    }
    return false;
}

/// The entries of one scene in both configurations.
class SceneDiff
{
public:
    SceneDiff(const ComparedConfig& a, const ComparedConfig& b, std::size_t scene,
              std::vector<Change>& changes)
        : m_a(a),
          m_b(b),
          m_scene(scene),
          m_entriesA(entriesOf(dataOf(a.writtenScenes))),
          m_entriesB(entriesOf(dataOf(b.writtenScenes))),
          m_pairs(EntryPairing::pair(identities(m_entriesA), identities(m_entriesB))),
          m_changes(changes)
    {
        const RuleData& dataA = dataOf(a.writtenScenes);
        for (const TemplateSection& section : dataA.getTemplate()->sections())
            m_written.push_back(
                {EntryPlaces::of(dataA, section, a.written, a.pointer).entries,
                 EntryPlaces::of(dataOf(b.writtenScenes), section, b.written, b.pointer).entries});
    }

    void compareEntries();
    /// What only the files say of entries that are in both, and what lies between them.
    void compareOthers();

private:
    const RuleData& dataOf(const RuleParser& scenes) const { return *scenes.getAllData()[m_scene]; }
    void compareUnseen(const EntryPairing::Pair& pair, bool isTold);
    void compareRest(const TemplateSection& section);

    const ComparedConfig& m_a;
    const ComparedConfig& m_b;
    std::size_t m_scene;
    Entries m_entriesA;
    Entries m_entriesB;
    EntryPairing::Pairs m_pairs;
    /// Of each section, of the entries of both.
    std::vector<std::pair<std::vector<EntryPlaces::Place>, std::vector<EntryPlaces::Place>>>
        m_written;
    std::vector<Change>& m_changes;
};

void SceneDiff::compareEntries()
{
    const RuleData& data = dataOf(m_b.writtenScenes);
    const EntryChanges changes(data.getTemplate()->name());
    const EntryPairing::Pairs moved = EntryPairing::moved(m_pairs);
    std::vector<bool> isPaired(m_entriesA.size(), false);
    for (const auto& pair : m_pairs)
        isPaired[static_cast<std::size_t>(pair.first)] = true;
    for (std::size_t i = 0; i < m_entriesA.size(); ++i) {
        if (!isPaired[i])
            m_changes.push_back(changes.removed({m_entriesA[i], static_cast<int>(i)}));
    }
    auto pair = m_pairs.begin();
    for (std::size_t i = 0; i < m_entriesB.size(); ++i) {
        const EntryChanges::Side b{m_entriesB[i], static_cast<int>(i)};
        if (pair == m_pairs.end() || pair->second != b.position) {
            m_changes.push_back(changes.added(b));
            continue;
        }
        const EntryChanges::Side a{m_entriesA[static_cast<std::size_t>(pair->first)], pair->first};
        const bool isMoved = std::find(moved.begin(), moved.end(), *pair) != moved.end();
        auto found = changes.between(a, b, isMoved);
        const bool isTold = !found.empty();
        std::move(found.begin(), found.end(), std::back_inserter(m_changes));
        compareUnseen(*pair, isTold);
        ++pair;
    }
}

/// What a save writes of two entries and neither rows nor canvas show. Where something else of them
/// @p isTold, that are the lengths of further staffs alone, as all else is in what is told.
void SceneDiff::compareUnseen(const EntryPairing::Pair& pair, bool isTold)
{
    for (const auto& [writtenA, writtenB] : m_written) {
        const EntryPlaces::Place& a = writtenA[static_cast<std::size_t>(pair.first)];
        const EntryPlaces::Place& b = writtenB[static_cast<std::size_t>(pair.second)];
        OtherMembers({}, [&](const OtherMembers::Place& place) {
            if (!isTold || isFurtherLength(place.pointerB.mid(b.pointer.size()), b.json))
                m_changes.push_back(otherChange(place, true));
        }).compare({a.json, b.json, a.pointer, b.pointer});
    }
}

void SceneDiff::compareOthers()
{
    const RuleData& a = dataOf(m_a.readScenes);
    const RuleData& b = dataOf(m_b.readScenes);
    const QStringList parents = parentsOf(m_b.readScenes);
    for (const TemplateSection& section : b.getTemplate()->sections()) {
        const auto inA = EntryPlaces::of(a, section, m_a.read, m_a.pointer).entries;
        const auto inB = EntryPlaces::of(b, section, m_b.read, m_b.pointer).entries;
        const NamedPaths named = EntryPlaces::namedIn(b, section, parents);
        for (const auto& [first, second] : m_pairs) {
            const auto i = static_cast<std::size_t>(first);
            const auto j = static_cast<std::size_t>(second);
            const bool areObjects = i < inA.size() && j < inB.size() && inA[i].json &&
                                    inA[i].json->isObject() && inB[j].json &&
                                    inB[j].json->isObject();
            if (areObjects)
                comparePlaces(inA[i], inB[j], named, false, m_changes);
        }
        compareRest(section);
    }
}

/// A save keeps some of it as it was read, as rules that no lane has.
void SceneDiff::compareRest(const TemplateSection& section)
{
    const auto compare = [&](const auto& a, const auto& b, bool isSaved) {
        const std::size_t before = m_changes.size();
        for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
            const EntryPlaces::Place none{nullptr, {}};
            comparePlaces(i < a.size() ? a[i] : none, i < b.size() ? b[i] : none, {}, isSaved,
                          m_changes);
        }
        return m_changes.size() == before;
    };
    const auto written = [&](const ComparedConfig& config) {
        return EntryPlaces::of(dataOf(config.writtenScenes), section, config.written,
                               config.pointer)
            .rest;
    };
    const auto read = [&](const ComparedConfig& config) {
        return EntryPlaces::of(dataOf(config.readScenes), section, config.read, config.pointer)
            .rest;
    };
    if (compare(written(m_a), written(m_b), true))
        compare(read(m_a), read(m_b), false);
}

} // namespace

ConfigDiff::ConfigDiff(const ComparedConfig& a, const ComparedConfig& b) : m_a(a), m_b(b)
{
    for (std::size_t i = 0; i < b.writtenScenes.getAllData().size(); ++i)
        compareScene(i);
    compareRest();
    m_isSame = std::none_of(m_changes.begin(), m_changes.end(),
                            [](const Change& change) { return change.isSaved; });
}

void ConfigDiff::compareScene(std::size_t scene)
{
    SceneDiff diff(m_a, m_b, scene, m_changes);
    diff.compareEntries();
    diff.compareOthers();
}

void ConfigDiff::compareRest()
{
    NamedPaths named;
    const QStringList parents = parentsOf(m_b.readScenes);
    for (const QString& parent : parents)
        named.add(parent);
    comparePlaces({&m_a.read, m_a.pointer}, {&m_b.read, m_b.pointer}, named, false, m_changes);
}
