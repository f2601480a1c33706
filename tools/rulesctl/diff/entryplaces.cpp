#include "tools/rulesctl/diff/entryplaces.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"

#include <QHash>

using kql::Json::Value;

namespace
{

QString fromView(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString pointerOf(const JsonPath& path)
{
    OtherMembers::Place place{nullptr, nullptr, {}, {}};
    for (const JsonPath::Part& part : path.parts()) {
        const bool goesOn = &part != &path.parts().back();
        place = place.member(fromView(part.name));
        if (part.isArray && goesOn)
            place = place.element(0);
    }
    return place.pointerA;
}

} // namespace

EntryPlaces EntryPlaces::of(const RuleData& data, const TemplateSection& section,
                            const Value& document, const QString& pointer)
{
    const SceneProtocol& protocol = sceneProtocol(data.getSceneType());
    const JsonPath parent(section.parent);
    const Value* const whole = parent.find(document);
    const QString below = pointer + pointerOf(parent);
    const JsonEntries listed = protocol.entriesAt(whole);
    QHash<const Value*, QString> pointers;
    for (std::size_t i = 0; i < listed.size(); ++i)
        pointers.insert(listed[i],
                        listed[i] == whole ? below : below + QLatin1Char('/') + QString::number(i));
    EntryPlaces places;
    const JsonEntries sources = protocol.sources(data, section, document);
    for (const Value* source : sources)
        places.entries.push_back({source, pointers.value(source)});
    QHash<const Value*, QString> left = pointers;
    for (const Value* source : sources)
        left.remove(source);
    for (const Value* other : listed) {
        if (left.contains(other))
            places.rest.push_back({other, pointers.value(other)});
    }
    return places;
}

NamedPaths EntryPlaces::namedIn(const RuleData& data, const TemplateSection& section,
                                const QStringList& parents)
{
    NamedPaths named;
    for (const auto& item : data.getTemplate()->items()) {
        if (item->templateName() != section.name || item->path().text().isEmpty())
            continue;
        named.add(item->path().text(), item->isFigure() ? NamedPaths::kWhole : item->index());
        if (item->drawType() == BaseDrawType::Parallelogram)
            named.add(ConfigMember::directionPath().text());
    }
    if (section.name == ConfigMember::kRuleSection) {
        named.add(fromView(ConfigMember::kName));
        named.add(fromView(ConfigMember::kEnable));
    } else if (data.getSceneType() == SceneType::Lanes) {
        named.add(fromView(ConfigMember::kLeftLine));
        named.add(fromView(ConfigMember::kRightLine));
    }
    const QString inside = section.parent + QLatin1Char('.');
    for (const QString& parent : parents) {
        if (parent.startsWith(inside))
            named.add(parent.mid(inside.size()));
    }
    return named;
}
