#include "draw/drawscene.h"

#include "draw/basedraw.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"
#include "draw/forbidenarea.h"
#include "draw/labelfont.h"
#include "draw/shortenedtext.h"
#include "draw/widetext.h"
#include "host/api/limits.h"

#include <QHash>
#include <algorithm>
#include <cmath>

namespace
{

const Gdiplus::ARGB kShade = 0x64000000;
const Gdiplus::ARGB kMessageColor = 0xFFFFFFFF;
void paintFigures(Gdiplus::Graphics& graphics, const std::vector<BaseDraw*>& figures)
{
    qint64 points = 0;
    for (const BaseDraw* figure : figures)
        points += figure->pointCount();
    if (points > Limits::kSmoothPoints)
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeNone);
    for (BaseDraw* figure : figures)
        figure->draw(&graphics);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
}

/// Maps the items of @p source's tree to those of @p copy's, a clone of it.
void pairTrees(DrawItem* source, DrawItem* copy, QHash<const DrawItem*, DrawItem*>& pairs)
{
    pairs.insert(source, copy);
    for (std::size_t i = 0; i < source->children().size(); ++i)
        pairTrees(source->children()[i].get(), copy->children()[i].get(), pairs);
}

} // namespace

DrawScene::DrawScene(QObject* parent) : QObject(parent) {}

DrawScene::~DrawScene()
{
    // The items report their end to this scene, so they go while all of it still exists.
    m_items.clear();
    m_roots.clear();
}

void DrawScene::copyItemsFrom(const DrawScene& other)
{
    if (&other == this)
        return;
    calcDrawForbidenArea(nullptr);
    m_message.clear();
    m_items.clear();
    m_roots.clear();
    m_canvasSize = other.m_canvasSize;
    QHash<const DrawItem*, DrawItem*> copies;
    for (const auto& original : other.m_roots)
        pairTrees(original.get(), own(original->clone()), copies);
    for (const DrawItem* item : other.m_items.all())
        list(*copies.value(item));
}

void DrawScene::setCanvasSize(int width, int height)
{
    m_canvasSize = QSize(std::max(width, 0), std::max(height, 0));
    for (const auto& root : m_roots)
        root->setCanvasSize(width, height);
    if (m_forbidenArea)
        resizeForbidenArea();
}

DrawItem* DrawScene::addItem(std::unique_ptr<DrawItem> item, int parentId)
{
    if (!item)
        return nullptr;
    item->setCanvasSize(m_canvasSize.width(), m_canvasSize.height());
    if (DrawItem* parent = findItem(parentId))
        return parent->addChild(std::move(item));
    DrawItem* added = own(std::move(item));
    itemAdded(*added);
    return added;
}

DrawItem* DrawScene::findItem(int id) const
{
    return id < 1 ? nullptr : m_items.byItemId(id);
}

void DrawScene::removeItem(int id)
{
    DrawItem* item = m_items.byItemId(id);
    if (!item)
        return;
    if (DrawItem* parent = item->parent())
        parent->removeChild(id);
    else
        m_roots.erase(std::find_if(m_roots.begin(), m_roots.end(),
                                   [item](const auto& root) { return root.get() == item; }));
}

QList<DrawItem*> DrawScene::getItemList(BaseDrawType type, int dataId) const
{
    if (type == BaseDrawType::None && dataId < 1)
        return m_items.all();
    QList<DrawItem*> items = dataId < 1 ? m_items.all() : getItemListByDataId(dataId);
    const auto isOther = [type](const DrawItem* item) { return item->drawType() != type; };
    items.erase(std::remove_if(items.begin(), items.end(), isOther), items.end());
    return items;
}

int DrawScene::itemCount(BaseDrawType type, int dataId) const
{
    return getItemList(type, dataId).size();
}

QList<DrawItem*> DrawScene::getItemListByDataId(int dataId) const
{
    QList<DrawItem*> items;
    for (const auto& [id, item] : itemsOf(dataId))
        items.append(item);
    return items;
}

DrawItem* DrawScene::getFirstDrawItem() const
{
    return m_items.all().value(0);
}

void DrawScene::setSelected(int itemId, int dataId)
{
    calcDrawForbidenArea(nullptr);
    DrawItem* selected = nullptr;
    const QList<DrawItem*> items = changedBySelecting(itemId);
    for (DrawItem* item : items) {
        bool finished = false;
        if (isSkipped(*item, dataId) || !item->figure() || !item->selectById(itemId, &finished))
            continue;
        selected = item;
        if (finished) {
            m_message.clear();
        } else {
            m_message = getBeginDrawMsg(item);
            calcDrawForbidenArea(item);
        }
    }
    if (!m_drawByDataId && !m_items.hasSharedIds())
        noteSelected(selected, true);
    emit sgnSelectedStatusChange();
}

DrawItem* DrawScene::selectedItem(int dataId) const
{
    if (m_drawByDataId && dataId >= 1)
        return findSelected(dataId);
    if (m_foundAtRevision != BaseDraw::selectionRevision())
        noteSelected(findSelected(dataId), false);
    return m_foundSelected;
}

void DrawScene::noteSelected(DrawItem* item, bool isOnly) const
{
    m_foundSelected = item;
    m_foundAtRevision = BaseDraw::selectionRevision();
    m_isFoundOnly = isOnly;
}

/// The items that selecting that one may change: where it is known that a single one is selected,
/// that and the new one.
QList<DrawItem*> DrawScene::changedBySelecting(int itemId) const
{
    const bool isKnown = m_foundAtRevision == BaseDraw::selectionRevision() && m_isFoundOnly;
    if (!isKnown || m_items.hasSharedIds())
        return m_items.all();
    QList<DrawItem*> items;
    if (m_foundSelected)
        items.append(m_foundSelected);
    DrawItem* item = m_items.byItemId(itemId);
    if (item && item != m_foundSelected)
        items.append(item);
    return items;
}

void DrawScene::addDrawPoint(DrawMouseType type, const QPoint& point)
{
    DrawItem* item = selectedItem(m_currentDataId);
    if (!item) {
        m_message.clear();
        return;
    }
    switch (type) {
    case DrawMouseLeftPress:
        pressLeft(*item, point);
        break;
    case DrawMouseRightPress:
        pressRight(*item);
        break;
    case DrawMouseMove:
        item->figure()->setMovePoint(point.x(), point.y());
        break;
    }
}

void DrawScene::redrawItem(int id)
{
    DrawItem* item = findItem(id);
    if (!item || !item->figure())
        return;
    item->figure()->clear();
    item->figure()->tryFinish();
    m_message = getBeginDrawMsg(item);
    calcDrawForbidenArea(item);
    emit sgnSelectedStatusChange();
}

bool DrawScene::HasDrawUnfinished() const
{
    const QList<DrawItem*>& items = m_items.all();
    return std::any_of(items.begin(), items.end(), [](const DrawItem* item) {
        return item->isSelected() && !item->isDrawOver();
    });
}

void DrawScene::SetDrawOver(bool over)
{
    for (DrawItem* item : m_items.all()) {
        if (item->isSelected())
            item->figure()->setDrawOver(over);
    }
}

void DrawScene::draw(Gdiplus::Graphics* graphics)
{
    if (!graphics)
        return;
    FigureLayer::setQuality(*graphics);
    const DrawItem* drawn = itemBeingDrawn();
    std::vector<BaseDraw*> below;
    std::vector<BaseDraw*> above;
    BaseDraw* live = nullptr;
    for (const DrawItem* item : m_items.all()) {
        if (!item->figure() || isSkipped(*item, m_currentDataId))
            continue;
        if (item == drawn)
            live = item->figure();
        else
            (live ? above : below).push_back(item->figure());
    }
    drawLayer(*graphics, m_below, below, true);
    if (live)
        paintFigures(*graphics, {live});
    drawLayer(*graphics, m_above, above, false);
    drawMessage(*graphics);
}

void DrawScene::dropPainting()
{
    m_below.drop();
    m_above.drop();
}

bool DrawScene::isPointForbidden(const QPoint& point) const
{
    return m_forbidenArea && m_forbidenArea->contains(point);
}

void DrawScene::itemAdded(DrawItem& item)
{
    list(item);
    for (const auto& child : item.children())
        itemAdded(*child);
}

void DrawScene::itemGone(DrawItem& item)
{
    m_items.remove(&item);
    m_foundAtRevision.reset();
    if (m_forbidenFor == &item)
        calcDrawForbidenArea(nullptr);
}

void DrawScene::itemIdsChanged(DrawItem&)
{
    m_items.invalidate();
}

void DrawScene::list(DrawItem& item)
{
    item.setListener(this);
    m_items.append(&item);
    m_foundAtRevision.reset();
}

DrawItem* DrawScene::own(std::unique_ptr<DrawItem> item)
{
    m_roots.push_back(std::move(item));
    return m_roots.back().get();
}

bool DrawScene::isSkipped(const DrawItem& item, int dataId) const
{
    return m_drawByDataId && dataId >= 1 && item.dataId() != dataId;
}

DrawItem* DrawScene::findSelected(int dataId) const
{
    for (DrawItem* item : m_items.all()) {
        if (isSkipped(*item, dataId))
            continue;
        if (DrawItem* selected = item->selectedItem())
            return selected;
    }
    return nullptr;
}

void DrawScene::pressLeft(DrawItem& item, const QPoint& point)
{
    BaseDraw* figure = item.figure();
    if (figure->isFinished() || isPointForbidden(point))
        return;
    figure->addPoint(point.x(), point.y());
    if (figure->isFinished()) {
        finishDrawing(item);
    } else if (item.forbidenAreaType() == DrawItemForbidenAreaType::ForbidenSelf &&
               !m_forbidenArea) {
        m_forbidenArea = ForbidenArea::of(figure->getForbidenArea());
        m_forbidenFor = &item;
        ++m_forbidenRevision;
    }
}

void DrawScene::pressRight(DrawItem& item)
{
    if (!item.isFinished() && item.figure()->tryFinish())
        finishDrawing(item);
}

void DrawScene::finishDrawing(const DrawItem& item)
{
    m_message = getEndDrawMsg(&item);
    calcDrawForbidenArea(nullptr);
    emit sgnSelectedStatusChange();
}

void DrawScene::calcDrawForbidenArea(const DrawItem* item)
{
    m_forbidenArea.reset();
    m_forbidenFor = item;
    ++m_forbidenRevision;
    if (!item)
        return;
    if (item->forbidenAreaType() == DrawItemForbidenAreaType::ForbidenOtherItems)
        keepOutOfItems(nullptr);
    else if (item->forbidenAreaType() == DrawItemForbidenAreaType::ForbidenOutsideParent)
        keepInsideParent(*item);
}

void DrawScene::resizeForbidenArea()
{
    ++m_forbidenRevision;
    switch (m_forbidenFor->forbidenAreaType()) {
    case DrawItemForbidenAreaType::ForbidenNone:
        break;
    case DrawItemForbidenAreaType::ForbidenOtherItems:
        keepOutOfItems(m_forbidenFor);
        break;
    case DrawItemForbidenAreaType::ForbidenOutsideParent:
        keepInsideParent(*m_forbidenFor);
        break;
    case DrawItemForbidenAreaType::ForbidenSelf:
        m_forbidenArea = ForbidenArea::of(m_forbidenFor->figure()->getForbidenArea());
        break;
    }
}

void DrawScene::keepOutOfItems(const DrawItem* except)
{
    m_forbidenArea = ForbidenArea::inside(m_canvasSize);
    for (const DrawItem* item : m_items.all()) {
        if (item->figure() && item != except)
            m_forbidenArea->addOutline(DrawGeometry::clockwise(item->figure()->canvasPoints()));
    }
}

void DrawScene::keepInsideParent(const DrawItem& item)
{
    m_forbidenArea = ForbidenArea::between(m_canvasSize);
    const DrawItem* parent = item.parent();
    if (!parent || !parent->figure() || parent->drawType() == BaseDrawType::VehicleLane)
        return;
    m_forbidenArea->addCanvas();
    m_forbidenArea->addOutline(parent->figure()->canvasPoints());
}

DrawItem* DrawScene::itemBeingDrawn() const
{
    DrawItem* item = selectedItem(m_currentDataId);
    return item && !item->isFinished() ? item : nullptr;
}

void DrawScene::drawLayer(Gdiplus::Graphics& graphics, FigureLayer& layer,
                          const std::vector<BaseDraw*>& figures, bool withForbidenArea) const
{
    const bool withArea = withForbidenArea && m_forbidenArea;
    if (figures.empty() && !withArea)
        return layer.drop();
    FigureLayer::Revisions shown;
    shown.reserve(figures.size() + 1);
    shown.push_back(withArea ? m_forbidenRevision : 0);
    for (const BaseDraw* figure : figures)
        shown.push_back(figure->revision());
    layer.draw(graphics, m_canvasSize, std::move(shown), [&](Gdiplus::Graphics& target) {
        if (withArea)
            m_forbidenArea->paint(target);
        paintFigures(target, figures);
    });
}

void DrawScene::drawMessage(Gdiplus::Graphics& graphics) const
{
    if (m_message.isEmpty())
        return;
    const Gdiplus::Font& font = LabelFont::font();
    Gdiplus::RectF text;
    const QString shown = ShortenedText::of(m_message, Limits::kHint);
    graphics.MeasureString(wideText(shown), -1, &font, Gdiplus::PointF(0, 0), &text);
    text.X = std::trunc((float(m_canvasSize.width()) - text.Width) / 2);
    text.Y = std::trunc((float(m_canvasSize.height()) - text.Height) / 2);
    const Gdiplus::SolidBrush shade{Gdiplus::Color(kShade)};
    graphics.FillRectangle(&shade, text.X, text.Y, text.Width, text.Height);
    const Gdiplus::StringFormat format;
    const Gdiplus::SolidBrush ink{Gdiplus::Color(kMessageColor)};
    graphics.DrawString(wideText(shown), -1, &font, text, &format, &ink);
}

void DrawScene::refreshMessage()
{
    const DrawItem* item = selectedItem(m_currentDataId);
    if (item && !m_message.isEmpty())
        m_message = item->isFinished() ? getEndDrawMsg(item) : getBeginDrawMsg(item);
}

QString DrawScene::getBeginDrawMsg(const DrawItem* item) const
{
    return item ? tr("Please draw %1!").arg(item->label()) : QString();
}

QString DrawScene::getEndDrawMsg(const DrawItem* item) const
{
    return item ? tr("Draw %1 complete!").arg(item->label()) : QString();
}
