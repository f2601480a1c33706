#include "Protocol/detection/detectionwriter.h"

#include "Protocol/datatemplate.h"
#include "Protocol/detection/detectionentries.h"
#include "Protocol/entrytarget.h"
#include "Protocol/entrywriter.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/writecontext.h"
#include "draw/drawitem.h"

#include <utility>

using kql::Json::Value;

namespace
{

/// The shapes that entries take, from the skeleton and from the configuration as read.
class Shapes
{
public:
    Shapes(const Value* skeleton, const Value* source)
        : m_isBareSkeleton(DetectionEntries::isBareList(skeleton)),
          m_isBareSource(DetectionEntries::isBareList(source)),
          m_sources(DetectionEntries::of(source)),
          m_areNewPoints(arePoints(skeleton, m_sources))
    {
    }

    const Value* source(const RuleDataInfo& entry) const
    {
        const auto index = static_cast<std::size_t>(entry.sourceIndex());
        return entry.sourceIndex() >= 0 && index < m_sources.size() ? m_sources[index] : nullptr;
    }
    bool isPoints(const RuleDataInfo& entry) const
    {
        const Value* was = source(entry);
        return was ? was->isArray() : m_areNewPoints;
    }
    /// Whether @p entry, when it is the only one, stands bare in the place of the list.
    bool isBare(const RuleDataInfo& entry) const
    {
        return isPoints(entry) && (source(entry) ? m_isBareSource : m_isBareSkeleton);
    }

private:
    static bool arePoints(const Value* skeleton, const EntryList::Entries& sources)
    {
        const auto patterns = DetectionEntries::of(skeleton);
        const auto& entries = patterns.empty() ? sources : patterns;
        return !entries.empty() && entries.front()->isArray();
    }

    bool m_isBareSkeleton;
    bool m_isBareSource;
    EntryList::Entries m_sources;
    bool m_areNewPoints;
};

Value writePoints(const RuleData& data, const EntryWriter& writer, const RuleDataInfo& entry)
{
    const auto figureItems = data.getTemplate()->figureItems();
    const DrawItem* figure =
        figureItems.isEmpty() ? nullptr : writer.figures().first(entry.id(), *figureItems.first());
    return PointConversion::toJson(figure ? figure->getPoints() : QVector<QPoint>());
}

} // namespace

bool DetectionWriter::writeDetection(const RuleData& data, const WriteContext& context,
                                     Value& document)
{
    EntryTarget target(document, data.getTemplate()->parent());
    const EntryWriter writer(data, data.getTemplate()->name());
    const Value prototype = writer.prototype(target.prototype());
    const JsonPath parent(data.getTemplate()->parent());
    const Shapes shapes(target.skeleton(), parent.probe(context.configuration));
    std::vector<Value> entries;
    for (const auto& entry : data.getAllData()) {
        if (shapes.isPoints(*entry)) {
            entries.push_back(writePoints(data, writer, *entry));
        } else {
            entries.push_back(prototype);
            writer.write(*entry, shapes.source(*entry), entries.back());
        }
    }
    if (entries.size() == 1 && shapes.isBare(*data.getAllData().front()))
        return target.putAlone(std::move(entries.front()));
    return target.put(std::move(entries));
}
