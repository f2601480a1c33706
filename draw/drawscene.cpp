#include "draw/drawscene.h"

#include "draw/basedraw.h"
#include "draw/figureindex.h"
#include "draw/figuresurroundings.h"
#include "draw/forbidenarea.h"
#include "draw/labelfont.h"
#include "draw/shortenedtext.h"
#include "host/api/limits.h"

#include <algorithm>
#include <cmath>
#include <iterator>

using Part = PaintedFigure::Part;

namespace
{

constexpr int kLeastMessage = 12; // characters, however small the picture is

const Gdiplus::ARGB kShade = 0x64000000;
const Gdiplus::ARGB kMessageGround = 0x80000000; ///< for white to be read on snow
const Gdiplus::ARGB kMessageColor = 0xFFFFFFFF;

} // namespace

DrawScene::DrawScene(QObject* parent) : QObject(parent) {}

DrawScene::~DrawScene()
{
    removeAll(); // the items report their end to this scene
}

void DrawScene::copyItemsFrom(const DrawScene& other)
{
    if (&other == this)
        return;
    clear();
    m_canvasSize = other.m_canvasSize;
    QHash<const DrawItem*, DrawItem*> copies;
    for (const auto& original : other.m_roots)
        own(original->clone(copies));
    for (const DrawItem* item : other.m_items)
        list(*copies.value(item));
}

void DrawScene::clear()
{
    calcDrawForbidenArea(nullptr);
    m_message.clear();
    removeAll();
}

void DrawScene::removeAll()
{
    m_items.clear();
    m_byDataId.clear();
    m_byPlace.reset();
    m_roots.clear();
}

void DrawScene::setCanvasSize(int width, int height)
{
    m_canvasSize = QSize(std::max(width, 0), std::max(height, 0));
    for (const auto& root : m_roots)
        root->setCanvasSize(width, height);
    if (m_forbidenArea)
        renewForbidenArea(*m_forbidenFor);
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
    if (id < 1)
        return nullptr;
    const auto found = std::find_if(m_items.begin(), m_items.end(),
                                    [id](const DrawItem* item) { return item->itemId() == id; });
    return found == m_items.end() ? nullptr : *found;
}

void DrawScene::removeItem(int id)
{
    const DrawItem* item = findItem(id);
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
        return m_items;
    QList<DrawItem*> items = dataId < 1 ? m_items : getItemListByDataId(dataId);
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
    if (m_byDataId.empty()) {
        for (DrawItem* item : m_items)
            m_byDataId.emplace(item->dataId(), item);
    }
    QList<DrawItem*> items;
    const auto [first, last] = m_byDataId.equal_range(dataId);
    for (auto entry = first; entry != last; ++entry)
        items.append(entry->second);
    return items;
}

DrawItem* DrawScene::getFirstDrawItem() const
{
    return m_items.value(0);
}

void DrawScene::setSelected(int itemId, int dataId)
{
    calcDrawForbidenArea(nullptr);
    for (DrawItem* item : qAsConst(m_items)) {
        bool finished = false;
        if (isSkipped(*item, dataId) || !item->figure() || !item->selectById(itemId, &finished))
            continue;
        m_message.clear();
        if (!finished) {
            m_message = getBeginDrawMsg(item);
            calcDrawForbidenArea(item);
        }
    }
    emit sgnSelectedStatusChange();
}

DrawItem* DrawScene::selectedItem(int dataId) const
{
    if (m_drawByDataId && dataId >= 1)
        return findSelected(dataId);
    if (m_foundAtRevision != BaseDraw::selectionRevision()) {
        m_foundSelected = findSelected(dataId);
        m_foundAtRevision = BaseDraw::selectionRevision();
    }
    return m_foundSelected;
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
        if (!item->isFinished() && item->figure()->tryFinish())
            finishDrawing(*item);
        break;
    case DrawMouseMove:
        item->figure()->setMovePoint(point.x(), point.y());
        break;
    }
}

bool DrawScene::takeBackPoint()
{
    const DrawItem* item = itemBeingDrawn();
    QVector<QPoint> points = item ? item->value().points() : QVector<QPoint>();
    if (points.isEmpty())
        return false;
    points.removeLast();
    setDrawnPoints(*item, points);
    return true;
}

bool DrawScene::takeBackPoints()
{
    const DrawItem* item = itemBeingDrawn();
    if (!item || item->value().points().isEmpty())
        return false;
    setDrawnPoints(*item, {});
    return true;
}

void DrawScene::setDrawnPoints(const DrawItem& item, const QVector<QPoint>& points)
{
    Figure figure = item.value();
    figure.setPoints(points);
    item.figure()->setFigure(figure);
    if (points.isEmpty())
        item.figure()->clear(); // the rubber band, too
    m_refusal = DrawRefusal::None;
    renewForbidenArea(item);
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

void DrawScene::setPreview(int itemId, const std::optional<Figure>& figure, bool isRefused)
{
    const DrawItem* item = findItem(itemId);
    if (!item || !item->figure())
        return;
    item->figure()->setPreview(figure, isRefused);
    m_previewed = figure ? item : nullptr;
}

const FigureIndex& DrawScene::figuresByPlace() const
{
    if (!m_byPlace || m_byPlaceRevision != BaseDraw::lastRevision()) {
        m_byPlace = std::make_unique<FigureIndex>(m_items);
        m_byPlaceRevision = BaseDraw::lastRevision();
    }
    return *m_byPlace;
}

FigureSurroundings DrawScene::surroundings() const
{
    return {m_items, m_canvasSize};
}

std::pair<quint64, bool> DrawScene::look() const
{
    const DrawItem* drawn = itemBeingDrawn();
    return {drawn && drawn->figure() ? drawn->figure()->revision() : 0, m_message.isEmpty()};
}

bool DrawScene::HasDrawUnfinished() const
{
    return std::any_of(m_items.begin(), m_items.end(), [](const DrawItem* item) {
        return item->isSelected() && !item->isDrawOver();
    });
}

void DrawScene::SetDrawOver(bool over)
{
    for (DrawItem* item : qAsConst(m_items)) {
        if (item->isSelected())
            item->figure()->setDrawOver(over);
    }
}

void DrawScene::draw(Gdiplus::Graphics* graphics)
{
    if (!graphics)
        return;
    FigureLayer::setQuality(*graphics);
    const DrawItem* drawn = m_previewed ? m_previewed : itemBeingDrawn();
    std::vector<PaintedFigure> below;
    std::vector<PaintedFigure> live;
    std::vector<PaintedFigure> above;
    std::vector<PaintedFigure> ground;
    for (const DrawItem* item : qAsConst(m_items)) {
        if (!item->figure() || isSkipped(*item, m_currentDataId))
            continue;
        std::vector<PaintedFigure>& layer = item == drawn ? live : live.empty() ? below : above;
        layer.push_back(m_looks.of(*item, m_currentDataId));
    }
    // Casings lie beneath all strokes; while none is live one layer does for both.
    const bool isLive = !live.empty();
    const int groundParts = isLive ? Part::Bands | Part::Casings : Part::Bands;
    const int parts = isLive ? Part::Strokes : Part::Casings | Part::Strokes;
    for (const std::vector<PaintedFigure>* layer : {&below, &above})
        std::copy_if(layer->begin(), layer->end(), std::back_inserter(ground),
                     [&](const auto& one) { return isLive || one.look != PaintedFigure::Plain; });
    drawLayer(*graphics, m_ground, ground, groundParts);
    PaintedFigure::paint(*graphics, live, Part::Bands | Part::Casings);
    drawLayer(*graphics, m_below, below, parts);
    PaintedFigure::paint(*graphics, live, Part::Strokes);
    drawLayer(*graphics, m_above, above, parts);
    drawMessage(*graphics);
}

void DrawScene::dropPainting()
{
    m_ground.drop();
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
    m_items.removeOne(&item);
    m_byDataId.clear();
    m_byPlace.reset();
    if (m_previewed == &item)
        m_previewed = nullptr;
    m_foundAtRevision.reset();
    if (m_forbidenFor == &item)
        calcDrawForbidenArea(nullptr);
}

void DrawScene::itemIdsChanged()
{
    m_byDataId.clear();
}

void DrawScene::list(DrawItem& item)
{
    item.setListener(this);
    m_items.append(&item);
    if (!m_byDataId.empty())
        m_byDataId.emplace(item.dataId(), &item);
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
    for (DrawItem* item : m_items) {
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
    if (figure->isFinished())
        return;
    if (isPointForbidden(point)) {
        m_refusal = item.forbidenAreaType() == DrawItemForbidenAreaType::ForbidenOutsideParent
                        ? DrawRefusal::Outside
                        : DrawRefusal::Forbidden;
        return;
    }
    const int before = figure->pointCount();
    figure->addPoint(point.x(), point.y());
    m_refusal = figure->pointCount() == before ? DrawRefusal::Crossing : DrawRefusal::None;
    if (figure->isFinished()) {
        finishDrawing(item);
    } else if (item.forbidenAreaType() == DrawItemForbidenAreaType::ForbidenSelf &&
               !m_forbidenArea) {
        renewForbidenArea(item);
    }
}

void DrawScene::finishDrawing(const DrawItem& item)
{
    m_message = getEndDrawMsg(&item);
    calcDrawForbidenArea(nullptr);
    emit sgnSelectedStatusChange();
}

void DrawScene::calcDrawForbidenArea(const DrawItem* item)
{
    m_refusal = DrawRefusal::None;
    setForbidenArea(item ? forbidenArea(*item, nullptr) : nullptr, item);
}

/// Of a figure that may have points.
void DrawScene::renewForbidenArea(const DrawItem& item)
{
    const bool isOwn = item.forbidenAreaType() == DrawItemForbidenAreaType::ForbidenSelf;
    setForbidenArea(isOwn ? ownForbidenArea(item) : forbidenArea(item, &item), &item);
}

void DrawScene::resumeDrawing()
{
    if (const DrawItem* item = itemBeingDrawn())
        renewForbidenArea(*item);
}

void DrawScene::selectNothing(int dataId)
{
    m_message.clear();
    setSelected(0, dataId);
}

void DrawScene::setForbidenArea(std::unique_ptr<ForbidenArea> area, const DrawItem* item)
{
    m_forbidenArea = std::move(area);
    m_forbidenFor = item;
    ++m_forbidenRevision;
}

std::unique_ptr<ForbidenArea> DrawScene::ownForbidenArea(const DrawItem& item) const
{
    auto path = item.figure()->getForbidenArea();
    return path ? std::make_unique<ForbidenArea>(std::move(path), m_canvasSize) : nullptr;
}

std::unique_ptr<ForbidenArea> DrawScene::forbidenArea(const DrawItem& item,
                                                      const DrawItem* except) const
{
    return surroundings().forbidenTo(item, item.forbidenAreaType(), except);
}

DrawItem* DrawScene::itemBeingDrawn() const
{
    DrawItem* item = selectedItem(m_currentDataId);
    return item && !item->isFinished() ? item : nullptr;
}

void DrawScene::drawLayer(Gdiplus::Graphics& graphics, FigureLayer& layer,
                          const std::vector<PaintedFigure>& figures, int parts) const
{
    const ForbidenArea* area = parts & Part::Bands ? m_forbidenArea.get() : nullptr;
    if (figures.empty() && !area)
        return layer.drop();
    FigureLayer::Revisions shown{quint64(parts), area ? m_forbidenRevision : 0};
    shown.reserve(shown.size() + figures.size());
    for (const PaintedFigure& figure : figures)
        shown.push_back(figure.revision(parts));
    layer.draw(graphics, m_canvasSize, std::move(shown), [&](Gdiplus::Graphics& target) {
        if (area)
            area->paint(target);
        PaintedFigure::paint(target, figures, parts);
    });
}

void DrawScene::drawMessage(Gdiplus::Graphics& graphics) const
{
    if (m_message.isEmpty())
        return;
    const Gdiplus::Font& font = LabelFont::font();
    Gdiplus::RectF text;
    const auto measured = [&](const QString& shown) {
        graphics.MeasureString(LabelFont::wide(shown), -1, &font, Gdiplus::PointF(0, 0), &text);
        return shown;
    };
    QString shown = measured(ShortenedText::of(m_message, Limits::kHint));
    const float room = float(m_canvasSize.width());
    if (text.Width > room) {
        const int most = qMax(kLeastMessage, int(float(shown.size()) * room / text.Width));
        shown = measured(ShortenedText::middle(m_message, most));
    }
    text.X = std::trunc((float(m_canvasSize.width()) - text.Width) / 2);
    text.Y = std::trunc((float(m_canvasSize.height()) - text.Height) / 2);
    for (const Gdiplus::ARGB color : {kMessageGround, kShade}) {
        const Gdiplus::SolidBrush ground{Gdiplus::Color(color)};
        graphics.FillRectangle(&ground, text.X, text.Y, text.Width, text.Height);
    }
    const Gdiplus::StringFormat format;
    const Gdiplus::SolidBrush ink{Gdiplus::Color(kMessageColor)};
    graphics.DrawString(LabelFont::wide(shown), -1, &font, text, &format, &ink);
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
