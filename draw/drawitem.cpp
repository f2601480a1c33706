#include "draw/drawitem.h"

#include "draw/basedraw.h"
#include "draw/figurekinds.h"

#include <algorithm>
#include <atomic>
#include <limits>

namespace
{

int createItemId()
{
    static std::atomic<unsigned> used{0};
    return int(used++ % unsigned(std::numeric_limits<int>::max())) + 1;
}

void showAs(const BaseDraw& shown, BaseDraw& figure)
{
    figure.setCanvasSize(shown.canvasSize().width(), shown.canvasSize().height());
    figure.setSelected(shown.isSelected());
}

} // namespace

DrawItem::DrawItem(BaseDrawType type) : m_figure(createDraw(type)), m_itemId(createItemId()) {}

DrawItem::~DrawItem()
{
    if (m_listener)
        m_listener->itemGone(*this);
}

std::unique_ptr<DrawItem> DrawItem::clone(QHash<const DrawItem*, DrawItem*>& copies) const
{
    auto copy = std::make_unique<DrawItem>(drawType());
    if (m_figure) {
        copy->m_figure->setFigure(m_figure->figure());
        copy->m_figure->setDrawOver(m_figure->isDrawOver());
        showAs(*m_figure, *copy->m_figure);
    }
    copy->m_templateKey = m_templateKey;
    copy->m_forbidenAreaType = m_forbidenAreaType;
    copy->m_dataId = m_dataId;
    copy->m_sourceIndex = m_sourceIndex;
    for (const auto& child : m_children) {
        copy->m_children.push_back(child->clone(copies));
        copy->m_children.back()->m_parent = copy.get();
    }
    copies.insert(this, copy.get());
    return copy;
}

void DrawItem::setItemId(int id)
{
    m_itemId = id;
    if (m_listener)
        m_listener->itemIdsChanged();
}

void DrawItem::setDataId(int id)
{
    m_dataId = id;
    if (m_listener)
        m_listener->itemIdsChanged();
}

DrawItem* DrawItem::addChild(std::unique_ptr<DrawItem> child)
{
    if (!child)
        return nullptr;
    child->m_parent = this;
    child->setDataId(m_dataId);
    if (m_figure)
        child->setCanvasSize(m_figure->canvasSize().width(), m_figure->canvasSize().height());
    m_children.push_back(std::move(child));
    DrawItem* added = m_children.back().get();
    if (m_listener)
        m_listener->itemAdded(*added);
    return added;
}

void DrawItem::removeChild(int itemId)
{
    const auto found =
        std::find_if(m_children.begin(), m_children.end(),
                     [itemId](const auto& child) { return child->m_itemId == itemId; });
    if (found != m_children.end())
        m_children.erase(found);
}

DrawItem* DrawItem::findItem(int itemId)
{
    if (m_itemId == itemId)
        return this;
    for (const auto& child : m_children) {
        if (child->m_itemId == itemId)
            return child.get();
    }
    return nullptr;
}

DrawItem* DrawItem::selectedItem()
{
    if (isSelected())
        return this;
    for (const auto& child : m_children) {
        if (DrawItem* selected = child->selectedItem())
            return selected;
    }
    return nullptr;
}

void DrawItem::replaceFigure(BaseDrawType type)
{
    const std::shared_ptr<BaseDraw> figure = createDraw(type);
    if (!m_figure || !figure)
        return;
    figure->setLabel(m_figure->label());
    figure->setDirection(m_figure->direction());
    showAs(*m_figure, *figure);
    m_replacedFigures.push_front(m_figure);
    m_figure = figure;
}

void DrawItem::setPointLimits(int minimum, int maximum)
{
    if (!m_figure)
        return;
    const PointLimits& open = FigureKind::find(drawType())->openLimits;
    m_figure->setPointLimits(minimum < 0 ? open.minimum : minimum,
                             maximum < 0 ? open.maximum : maximum);
}

void DrawItem::setCanvasSize(int width, int height)
{
    if (m_figure)
        m_figure->setCanvasSize(width, height);
    for (const auto& child : m_children)
        child->setCanvasSize(width, height);
}

Figure DrawItem::value() const
{
    return m_figure ? m_figure->figure() : Figure();
}

bool DrawItem::isSelected() const
{
    return m_figure && m_figure->isSelected();
}

bool DrawItem::isDrawOver() const
{
    return m_figure && m_figure->isDrawOver();
}

void DrawItem::setLabel(const QString& label)
{
    if (m_figure)
        m_figure->setLabel(label);
}

void DrawItem::setDirection(BaseDrawDirectionType direction)
{
    if (m_figure)
        m_figure->setDirection(direction);
}

QVector<QPoint> DrawItem::getPoints() const
{
    QVector<QPoint> points;
    if (m_figure)
        m_figure->getPoints(points);
    return points;
}

void DrawItem::draw(Gdiplus::Graphics* graphics) const
{
    if (m_figure)
        m_figure->draw(graphics);
}

bool DrawItem::selectById(int itemId, bool* finished)
{
    const bool isThis = m_itemId == itemId;
    if (m_figure)
        m_figure->setSelected(isThis);
    if (isThis && finished)
        *finished = isFinished();
    return isThis;
}
