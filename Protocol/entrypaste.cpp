#include "Protocol/entrypaste.h"

#include "Protocol/copiedfigure.h"
#include "Protocol/datatemplate.h"
#include "Protocol/entryclip.h"
#include "Protocol/entrylimit.h"
#include "Protocol/entryname.h"
#include "Protocol/entryreader.h"
#include "Protocol/linedirections.h"
#include "Protocol/misfit.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "Protocol/validity.h"
#include "Protocol/valuefit.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "draw/shortenedtext.h"
#include "host/api/limits.h"

#include <utility>

using kql::Json::Value;

namespace
{

constexpr int kLongestCaption = 40;

qint64 textOf(const std::vector<CopiedFigure>& figures)
{
    qint64 text = 0;
    for (const CopiedFigure& figure : figures)
        text += Limits::kFigureText + qint64{Limits::kPointText} * figure.points.size() +
                qint64{Limits::kPointText} * figure.directions.size();
    return text;
}

void move(QVector<QPoint>& points, const QPoint& way)
{
    for (QPoint& point : points)
        point += way;
}

} // namespace

int EntryPaste::add(const Value& clip)
{
    auto created = m_data.newDataInfo();
    if (!created)
        return 0;
    RuleDataInfo& entry = *created;
    m_data.setTextLeft(Limits::kSceneText - EntryLimit::textHeld(m_data));
    readSource(clip, entry);
    if (EntryName::areKept(m_data))
        EntryReader::readMembers(clip, entry);
    readAttributes(clip[EntryClip::kAttributes], entry);
    const std::vector<CopiedFigure> figures = readFigures(clip[EntryClip::kFigures], entry);
    const qint64 text = textOf(figures);
    if (!m_data.takeText(text))
        return 0;
    m_data.setTextLeft(text); // all that reading them takes
    draw(figures, entry);
    Validity::update(*m_data.getTemplate(), entry);
    sceneProtocol(m_data.getSceneType()).setApart(m_data, entry);
    m_data.addDataInfo(std::move(created));
    LineDirections::apply(m_data, entry);
    Misfit::tell(m_data, entry);
    return entry.id();
}

void EntryPaste::readSource(const Value& clip, RuleDataInfo& entry)
{
    m_isFromHere = clip[EntryClip::kDocument].asString() == m_document;
    const int place = clip[EntryClip::kPlace].asInt();
    if (m_isFromHere && place >= 0) {
        entry.setSourceIndex(place);
        return;
    }
    Value part = sceneProtocol(m_data.getSceneType()).copiedPart(clip[EntryClip::kSource]);
    if (!part.isNull() && m_data.takeText(part.styledLength()))
        entry.setSource(std::move(part));
}

void EntryPaste::readAttributes(const Value& list, RuleDataInfo& entry)
{
    const EntryReader reader(m_data, m_data.getTemplate()->name());
    for (int i = 0; list.isArray() && i < list.size() && !m_data.isOverdrawn(); ++i) {
        const RuleProtocolItem* const item =
            m_data.getTemplate()->findItem(list[i][EntryClip::kKey].asString());
        const Value& value = list[i][EntryClip::kValue];
        // What the other entry does not say has the default here.
        if (value.isNull())
            continue;
        if (item && !item->isFigure())
            readAttribute(reader, *item, value, entry);
        else
            leaveOut(list[i], entry);
    }
}

/// Values that no row here could have been given are not sent unseen. Within one document they are
/// what the device sent.
void EntryPaste::readAttribute(const EntryReader& reader, const RuleProtocolItem& item,
                               const Value& value, RuleDataInfo& entry)
{
    const RuleDataInfo before = entry;
    RuleProtocolItem alone = item;
    alone.setIndex(-1);
    reader.readValue(alone, value, entry);
    const QString& key = item.key();
    if (m_isFromHere || (!entry.isMisfit(key) && ValueFit::isPossible(item, entry.value(key))))
        return;
    entry = before;
    m_data.saveNotices().add(SaveNotices::Kind::NotTaken,
                             ShortenedText::line(SaveNotices::subject(item), kLongestCaption),
                             entry);
}

std::vector<CopiedFigure> EntryPaste::readFigures(const Value& list, const RuleDataInfo& entry)
{
    std::vector<CopiedFigure> figures;
    for (int i = 0; list.isArray() && i < list.size(); ++i) {
        const Value& json = list[i];
        const RuleProtocolItem* const item =
            m_data.getTemplate()->findItem(json[EntryClip::kKey].asString());
        const bool isKnown = item && item->isFigure() &&
                             static_cast<int>(item->drawType()) == json[EntryClip::kKind].asInt();
        if (isKnown)
            figures.push_back({item, PointConversion::toPoints(json[EntryClip::kPoints]),
                               PointConversion::toPoints(json[EntryClip::kDirections]),
                               json[EntryClip::kPlace].asInt()});
        else
            leaveOut(json, entry);
    }
    return figures;
}

void EntryPaste::draw(const std::vector<CopiedFigure>& figures, const RuleDataInfo& entry)
{
    const QPoint way = wayToFreePlace(figures, *m_data.getDrawScene());
    const DataTemplate& dataTemplate = *m_data.getTemplate();
    const RuleProtocolItem* const own =
        sceneProtocol(m_data.getSceneType()).entryFigureItem(dataTemplate);
    DrawItem* parent = nullptr;
    for (CopiedFigure figure : figures) {
        const RuleProtocolItem& item = *figure.item;
        const bool isInside = item.linkedItem() || item.templateName() != dataTemplate.name();
        move(figure.points, way);
        move(figure.directions, way);
        DrawItem* const drawn =
            m_figures.add(item, entry, figure.points, item.caption(), isInside ? parent : nullptr);
        if (!drawn)
            continue;
        drawn->figure()->setDrawOver(false); // not saved yet
        if (drawn->drawType() == BaseDrawType::Parallelogram)
            drawn->figure()->setDirectionPoints(figure.directions);
        if (entry.sourceIndex() >= 0 || entry.source())
            drawn->setSourceIndex(qMax(-1, figure.place));
        if (&item == own && !parent)
            parent = drawn;
    }
}

/// One that has no caption is told by its key.
void EntryPaste::leaveOut(const Value& left, const RuleDataInfo& entry)
{
    const QString caption = left[EntryClip::kCaption].asString();
    const QString name = caption.isEmpty() ? left[EntryClip::kKey].asString() : caption;
    m_data.saveNotices().add(SaveNotices::Kind::LeftOut, ShortenedText::line(name, kLongestCaption),
                             entry);
}
