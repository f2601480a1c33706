#include "Protocol/entrywriter.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/validity.h"
#include "Protocol/valueconversion.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "host/api/limits.h"

#include <QMap>
#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

using kql::Json::Value;

namespace
{

/// Makes room in one entry for items that are elements of array-valued fields.
class ElementMaker
{
public:
    /// The index 0 alone does not make the field an array: devices' templates give it for single
    /// values, too.
    void make(Value& field, int index)
    {
        const bool isElement = field.isArray() || (field.isNull() && index > 0);
        if (!isElement || index < field.size() || index - field.size() >= m_elementsLeft)
            return;
        m_elementsLeft -= index - field.size() + 1;
        field[index] = Value();
    }

private:
    int m_elementsLeft = Limits::kElements;
};

/// The field's path in one spelling.
QString fieldOf(const RuleProtocolItem& item)
{
    const QString& path = item.path().text();
    return path.endsWith(QLatin1String("[]")) ? path.chopped(2) : path;
}

bool isElement(const RuleProtocolItem& item)
{
    return !item.isFigure() && item.index() >= 0;
}

/// Unlike QVariant's own comparison this one tells 0 and an empty text from no value.
bool areSame(const QVariant& one, const QVariant& other)
{
    return one.isValid() == other.isValid() && one == other;
}

void writePointToJson(const QVector<QPoint>& points, const JsonPath& path, Value& json)
{
    if (Value* target = path.readPath(json))
        *target = PointConversion::toJson(points);
}

} // namespace

/// One entry being written.
struct EntryWriter::Pass {
    const RuleDataInfo& entry;
    const Value* asRead;
    Value& json;
    ElementMaker& elements;
};

EntryWriter::EntryWriter(const RuleData& data, const QString& section)
    : m_template(*data.getTemplate()), m_figures(data.figures())
{
    for (const auto& item : m_template.items()) {
        if (item->templateName() == section && !item->path().text().isEmpty())
            m_targets.push_back({item.get(), -1, false});
    }
    markSharedFields();
    collectElements();
}

void EntryWriter::markSharedFields()
{
    QMap<QString, std::vector<Target*>> fields;
    for (Target& target : m_targets)
        fields[fieldOf(*target.item)].push_back(&target);
    int count = 0;
    for (const std::vector<Target*>& sharing : qAsConst(fields)) {
        if (sharing.size() < 2)
            continue;
        int firstElement = std::numeric_limits<int>::max();
        for (Target* target : sharing) {
            target->sharedField = count;
            if (isElement(*target->item))
                firstElement = qMin(firstElement, target->item->index());
        }
        ++count;
        for (Target* target : sharing)
            target->isFurtherElement =
                isElement(*target->item) && target->item->index() > firstElement;
    }
}

void EntryWriter::collectElements()
{
    std::copy_if(m_targets.begin(), m_targets.end(), std::back_inserter(m_elements),
                 [](const Target& target) { return isElement(*target.item); });
    std::stable_sort(m_elements.begin(), m_elements.end(), [](const Target& a, const Target& b) {
        return a.item->index() > b.item->index();
    });
}

Value EntryWriter::prototype(const Value* skeleton) const
{
    if (!skeleton)
        return emptyEntry();
    Value entry = *skeleton;
    ElementMaker elements;
    for (const Target& target : m_elements) {
        Value* field = target.item->path().find(entry);
        if (field && field->isArray())
            elements.make(*field, target.item->index());
    }
    return entry;
}

Value EntryWriter::emptyEntry() const
{
    Value entry(kql::Json::ValueType::Object);
    ElementMaker elements;
    for (const Target& target : m_targets) {
        Value* field = target.item->path().create(entry);
        if (field && !target.item->isFigure())
            elements.make(*field, target.item->index());
        if (target.item->drawType() == BaseDrawType::Parallelogram)
            ConfigMember::directionPath().create(entry);
    }
    return entry;
}

void EntryWriter::write(const RuleDataInfo& entry, const Value* asRead, Value& json) const
{
    ElementMaker elements;
    const Pass pass{entry, asRead, json, elements};
    makeElements(pass);
    const std::vector<Step> steps = collectSteps(pass);
    const Weights heaviest = heaviestOf(steps, pass);
    for (const Step& step : steps) {
        if (!yields(step, heaviest))
            writeItem(*step.target, pass);
    }
}

/// What counts most goes last.
std::vector<EntryWriter::Step> EntryWriter::collectSteps(const Pass& pass) const
{
    const auto hidden = Validity::hiddenItems(m_template, pass.entry);
    std::vector<Step> steps;
    steps.reserve(m_targets.size());
    for (const Target& target : m_targets) {
        if (lacksElement(target, pass.json))
            continue;
        const bool isHidden = hidden.contains(target.item);
        steps.push_back({&target, weigh(target, isHidden, pass), placeOf(target, pass.json)});
    }
    std::stable_sort(steps.begin(), steps.end(),
                     [](const Step& a, const Step& b) { return a.weight < b.weight; });
    return steps;
}

bool EntryWriter::lacksElement(const RuleProtocolItem& item, const Value& entry) const
{
    return std::any_of(m_targets.begin(), m_targets.end(), [&](const Target& target) {
        return target.item == &item && lacksElement(target, entry);
    });
}

bool EntryWriter::lacksElement(const Target& target, const Value& entry)
{
    const Value* field = target.isFurtherElement ? target.item->path().find(entry) : nullptr;
    return field && !field->isArray() && !field->isNull();
}

EntryWriter::Weight EntryWriter::weigh(const Target& target, bool isHidden, const Pass& pass)
{
    const RuleProtocolItem& item = *target.item;
    const bool isShared = target.sharedField >= 0;
    const bool isKept = pass.entry.asRead(target.item->key()) && !item.isFigure();
    if (isKept && !isShared)
        return {Sight::NoOthers, State::Kept};
    const bool isSeen = item.isFigure() || item.isControl();
    const auto sight = isHidden ? Sight::Hidden : isSeen ? Sight::Shown : Sight::WithoutRow;
    if (isKept)
        return {sight, State::Kept};
    const Value* found = isShared && pass.asRead ? item.path().find(*pass.asRead) : nullptr;
    if (!found || item.isFigure())
        return {sight, State::Entered};
    const QVariant value = pass.entry.value(target.item->key());
    const QVariant read = ValueConversion::parseJsonToValue(*found, item);
    return {sight, areSame(value, read) ? State::Converted : State::Entered};
}

EntryWriter::Place EntryWriter::placeOf(const Target& target, const Value& json)
{
    const Value* field = target.sharedField < 0 ? nullptr : target.item->path().find(json);
    const int index = target.item->index();
    const bool isElement = field && field->isArray() && index >= 0 && index < field->size();
    return {target.sharedField, isElement ? index : -1};
}

/// Of what there is to write into each shared place.
EntryWriter::Weights EntryWriter::heaviestOf(const std::vector<Step>& steps, const Pass& pass)
{
    Weights heaviest;
    for (const Step& step : steps) {
        const Target& target = *step.target;
        const bool isValue = target.sharedField >= 0 && !target.item->isFigure();
        if (isValue && (step.isKept() || pass.entry.value(target.item->key()).isValid()))
            heaviest[step.place] = step.weight;
    }
    return heaviest;
}

/// What would be overwritten is not written before, which might leave the place in a shape that
/// what counts more does not fit; but what is merely converted goes over what was kept of it.
bool EntryWriter::yields(const Step& step, const Weights& heaviest)
{
    const auto found = heaviest.find(step.place);
    return step.target->sharedField >= 0 && found != heaviest.end() &&
           step.weight < found->second &&
           (!step.isKept() || found->second.second == State::Entered);
}

/// A skeleton may have null where devices have a list. Elements of it are made where one was read,
/// and when they are other than what is read without them.
void EntryWriter::makeElements(const Pass& pass) const
{
    const auto foundFor = [&pass](const Target& target) -> const Value& {
        static const Value nothing;
        const Value* found = pass.asRead ? target.item->path().find(*pass.asRead) : nullptr;
        return found ? *found : nothing;
    };
    std::vector<Target> missing;
    std::copy_if(m_elements.begin(), m_elements.end(), std::back_inserter(missing),
                 [&](const Target& target) {
                     const Value* field = target.item->path().find(pass.json);
                     return field && field->isNull();
                 });
    for (const Target& target : missing) {
        const RuleProtocolItem& item = *target.item;
        const Value& found = foundFor(target);
        Value& field = *item.path().readPath(pass.json);
        if (field.isNull() && found.isArray())
            field = Value(kql::Json::ValueType::Array);
        if ((found.isArray() && item.index() < found.size()) ||
            !areSame(pass.entry.value(target.item->key()),
                     ValueConversion::parseJsonToValue(found, item)))
            pass.elements.make(field, item.index());
    }
}

void EntryWriter::writeAsRead(const Target& target, const Value& kept, const Pass& pass)
{
    const JsonPath& path = target.item->path();
    Value* field = path.readPath(pass.json);
    if (!field && path.isPlainName())
        field = &pass.json[path.parts().front().name];
    Value* place = field ? ValueConversion::element(*field, *target.item) : nullptr;
    if (place)
        *place = kept;
}

void EntryWriter::writeItem(const Target& target, const Pass& pass) const
{
    if (target.item->isFigure())
        writeFigure(*target.item, pass);
    else if (const Value* kept = pass.entry.asRead(target.item->key()))
        writeAsRead(target, *kept, pass);
    else
        writeValueToJson(target, pass);
}

void EntryWriter::writeValueToJson(const Target& source, const Pass& pass)
{
    const RuleProtocolItem& item = *source.item;
    if (Value* target = item.path().readPath(pass.json)) {
        putValue(source, pass, *target);
        return;
    }
    if (!item.path().isPlainName())
        return;
    Value created;
    putValue(source, pass, created);
    if (!created.isNull())
        pass.json[item.path().parts().front().name] = std::move(created);
}

void EntryWriter::putValue(const Target& source, const Pass& pass, Value& field)
{
    const RuleProtocolItem& item = *source.item;
    const QVariant value = pass.entry.value(item.key());
    const bool needsSource = !value.isValid() || item.valueType() == ValueType::Float;
    const Value* asRead = pass.asRead && needsSource ? item.path().find(*pass.asRead) : nullptr;
    if (!value.isValid() && pass.entry.sourceIndex() >= 0 &&
        (!asRead || ValueConversion::element(*asRead, item).isNull()))
        return; // not even a list is emptied for what the configuration lacks
    ValueConversion::toJson(value, item, field, asRead);
}

void EntryWriter::writeMadePoints(const RuleProtocolItem& item, const RuleDataInfo& entry,
                                  Value& json) const
{
    const DrawItem* figure = m_figures.first(entry.id(), item);
    if (Value* place = figure ? item.path().create(json) : nullptr)
        *place = PointConversion::toJson(figure->getPoints());
}

void EntryWriter::writeFigure(const RuleProtocolItem& item, const Pass& pass) const
{
    const DrawItem* drawItem = m_figures.first(pass.entry.id(), item);
    if (!drawItem)
        return;
    writePointToJson(drawItem->getPoints(), item.path(), pass.json);
    if (drawItem->drawType() == BaseDrawType::Parallelogram)
        writePointToJson(drawItem->figure()->directionPoints(), ConfigMember::directionPath(),
                         pass.json);
}
