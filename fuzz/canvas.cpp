#include "fuzz/fault.h"
#include "fuzz/harnesses.h"
#include "fuzz/inputbytes.h"

#include "draw/basedraw.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "draw/figurelayer.h"
#include "draw/labelfont.h"
#include "host/gdiplus.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <functional>
#include <tuple>

using Fuzz::InputBytes;
using Fuzz::require;

namespace
{

constexpr int kMostOperations = 600;
constexpr int kMostItems = 120;
constexpr int kDataIds = 5; ///< from 0
constexpr int kPicture = 256;
constexpr int kOperations = 26;
constexpr int kPaintedAfter = 128; ///< and from there on they are, too

/// What a canvas shows of one item.
struct ItemState {
    int id;
    int dataId;
    const DrawItem* parent;
    const BaseDraw* figure;
    QVector<QPoint> points;
    bool isFinished;
    bool isSelected;
    bool isDrawOver;

    bool operator==(const ItemState& other) const
    {
        return std::tie(id, dataId, parent, figure, points, isFinished, isSelected, isDrawOver) ==
               std::tie(other.id, other.dataId, other.parent, other.figure, other.points,
                        other.isFinished, other.isSelected, other.isDrawOver);
    }
};

/// A canvas and the hand of an operator and a program on it.
class Bench
{
public:
    explicit Bench(std::string_view input) : m_bytes(input), m_scene(std::make_unique<DrawScene>())
    {
        m_scene->setCanvasSize(kPicture, kPicture);
    }

    void run()
    {
        for (int count = 0; count < kMostOperations && !m_bytes.atEnd(); ++count) {
            const int operation = m_bytes.byte();
            operate(operation % kOperations);
            requireOrder();
            if (operation >= kPaintedAfter)
                paint();
        }
        paint();
        LabelFont::release();
    }

private:
    void operate(int operation)
    {
        switch (operation) {
        case 0:
        case 1:
            return add();
        case 2:
            return m_scene->setSelected(id(), data());
        case 3:
        case 4:
        case 5:
            return press(point());
        case 6:
            return pressRight();
        case 7:
            return m_scene->addDrawPoint(DrawScene::DrawMouseMove, point());
        case 8:
            return redraw(id());
        case 9:
            return remove(id());
        case 10:
            return resize();
        case 11:
            return paint();
        default:
            return arrange(operation);
        }
    }

    /// What programs do, rather than operators.
    void arrange(int operation)
    {
        DrawItem* item = m_scene->findItem(id());
        switch (operation) {
        case 12:
            m_scene->setDrawByDataId(m_bytes.byte() % 2 == 0);
            return m_scene->setCurrentDataId(data());
        case 13:
            return m_scene->SetDrawOver(m_bytes.byte() % 2 == 0);
        case 14:
            return copy();
        case 15:
            if (item && item->figure())
                item->figure()->appendPoint({m_bytes.number(), m_bytes.number()});
            return;
        case 16:
            if (item)
                item->setDataId(data());
            return;
        case 17:
            if (item)
                change(*item);
            return;
        default:
            if (item && item->figure())
                change(*item->figure());
            return;
        }
    }

    void change(DrawItem& item)
    {
        switch (m_bytes.byte() % 4) {
        case 0:
            return item.replaceFigure(BaseDrawType(m_bytes.byte() % 11));
        case 1:
            return item.setDirection(BaseDrawDirectionType(m_bytes.byte() % 4));
        case 2:
            return item.setLabel(QString(m_bytes.byte(), QChar(m_bytes.number() & 0xFFFF)));
        default:
            if (item.figure())
                item.figure()->setDirectionPoints({point(), point()});
        }
    }

    void change(BaseDraw& figure)
    {
        const int value = m_bytes.byte();
        switch (m_bytes.byte() % 7) {
        case 0:
            return figure.setEdgeLabelMode(EdgeLabelMode(value % 2));
        case 1:
            return figure.setSelected(value % 2 != 0);
        case 2:
            return figure.setFinished(figure.pointCount() > 1 && value % 2 != 0);
        case 3:
            return figure.setMovePoint(std::nullopt);
        case 4:
            return figure.setMovePoint(value, m_bytes.byte());
        case 5:
            return setPoints(figure, 2 + value % 4);
        default:
            const DrawItem* other = m_scene->findItem(id());
            if (other && other->figure())
                figure.setFigure(other->figure()->figure());
        }
    }

    void setPoints(BaseDraw& draw, int count)
    {
        constexpr int step = DrawGeometry::kNormalizedExtent / kPicture;
        constexpr QRect scaled(-kPicture, -kPicture, 3 * kPicture, 3 * kPicture);
        Figure figure = draw.figure();
        figure.setPoints({});
        while (count-- > 0) {
            const QPoint at = point();
            figure.appendPoint(scaled.contains(at) ? at * step : at);
        }
        figure.setFinished(m_bytes.byte() % 2 != 0);
        draw.setFigure(figure);
    }

    void add()
    {
        auto item = std::make_unique<DrawItem>(BaseDrawType(m_bytes.byte() % 11));
        item->setDataId(data());
        item->setForbidenAreaType(DrawItemForbidenAreaType(m_bytes.byte() % 4));
        item->setLabel(QString(m_bytes.byte() % 8, QLatin1Char('%')));
        const int limits = m_bytes.byte();
        item->setPointLimits(limits % 16 - 2, limits / 16 - 2);
        const int parent = m_bytes.byte() % 4 == 0 ? id() : 0;
        if (itemCount() >= kMostItems)
            return;
        const int before = itemCount();
        const DrawItem* added = m_scene->addItem(std::move(item), parent);
        require(added && m_scene->findItem(added->itemId()) == added, "an added item is not found");
        require(itemCount() == before + 1, "an item was added more than once, or not");
    }

    void remove(int itemId)
    {
        const bool exists = m_scene->findItem(itemId);
        const auto before = state();
        m_scene->removeItem(itemId);
        require(!m_scene->findItem(itemId), "a removed item is still found");
        require(exists ? itemCount() < before.size() : state() == before, "the wrong items went");
    }

    void redraw(int itemId)
    {
        const bool exists = m_scene->findItem(itemId);
        const auto before = state();
        m_scene->redrawItem(itemId);
        require(exists || state() == before, "an item that does not exist was drawn anew");
    }

    void press(const QPoint& at)
    {
        const DrawItem* item = m_scene->selectedItem(m_scene->currentDataId());
        const bool refused = !item || item->isFinished() || m_scene->isPointForbidden(at);
        const auto before = state();
        const QString message = m_scene->message();
        const QVector<QPoint> points = item ? pointsOf(*item) : QVector<QPoint>();
        m_scene->addDrawPoint(DrawScene::DrawMouseLeftPress, at);
        require(!refused || state() == before, "a refused point changed something");
        if (!item)
            return;
        const QVector<QPoint> after = pointsOf(*item);
        require(!refused || m_scene->message() == message, "a refused point changed the message");
        require(after.mid(0, points.size()) == points, "a point changed the ones before it");
        if (after.size() == points.size() && !item->isFinished())
            require(state() == before, "a point that was not taken changed something");
        if (after.size() == points.size() + 1 && isKeptOnCanvas(*item, at))
            requireAt(after.last(), at);
    }

    void pressRight()
    {
        const DrawItem* item = m_scene->selectedItem(m_scene->currentDataId());
        const bool refused = !item || item->isFinished() || !item->figure()->isPointCountValid();
        const auto before = state();
        m_scene->addDrawPoint(DrawScene::DrawMouseRightPress, point());
        require(refused ? state() == before : item->isFinished(), "the wrong figure was finished");
    }

    /// Other figures keep a point where it was pressed, or in line with the ones before it; a
    /// parallelogram's third point follows from its fourth, which is kept on the canvas.
    bool isKeptOnCanvas(const DrawItem& item, const QPoint& at) const
    {
        const QRect canvas({0, 0}, m_scene->canvasSize());
        const QVector<QPoint> drawn = item.figure()->canvasPoints();
        return item.drawType() != BaseDrawType::Parallelogram && canvas.contains(at) &&
               std::all_of(drawn.begin(), drawn.end() - 1,
                           [&](const QPoint& point) { return canvas.contains(point); });
    }

    /// A point taken on the canvas lies where it was pressed, as far as it can be told there.
    void requireAt(const QPoint& normalized, const QPoint& pressed) const
    {
        constexpr int extent = DrawGeometry::kNormalizedExtent;
        require(QRect(0, 0, extent + 1, extent + 1).contains(normalized),
                "a point on the canvas lies outside of the figures' space");
        const QPoint off = DrawGeometry::toCanvas(normalized, m_scene->canvasSize()) - pressed;
        const QSize step = m_scene->canvasSize() / extent + QSize(1, 1);
        // A vertical ruler's points stand one above the other.
        require(std::abs(off.y()) <= step.height(), "a point lies elsewhere than it was pressed");
    }

    /// As they were drawn, whatever order the figure reports them in.
    static QVector<QPoint> pointsOf(const DrawItem& item)
    {
        QVector<QPoint> points;
        if (item.figure())
            item.figure()->BaseDraw::getPoints(points);
        return points;
    }

    void resize()
    {
        const int kind = m_bytes.byte();
        if (kind % 8 == 0)
            return m_scene->setCanvasSize(m_bytes.number() % 32768, m_bytes.number() % 32768);
        m_scene->setCanvasSize(m_bytes.byte() * 4, m_bytes.byte() * 4);
    }

    /// Kept or not, the picture is the same, bit by bit.
    void paint()
    {
        const auto draw = [this](Gdiplus::Graphics& graphics) { m_scene->draw(&graphics); };
        const QImage seen = painted(draw);
        m_scene->dropPainting();
        require(seen == painted(draw), "what was kept looks otherwise than what is painted anew");
        const QSize size = m_scene->canvasSize();
        if (!size.isEmpty() && size == size.boundedTo({kPicture, kPicture}))
            requireComposed();
    }

    /// A canvas without hint, forbidden area and current entry shows its items painted one by one.
    void requireComposed() const
    {
        DrawScene bare;
        bare.copyItemsFrom(*m_scene);
        require(painted([&](Gdiplus::Graphics& graphics) { bare.draw(&graphics); }) ==
                    painted([&](Gdiplus::Graphics& graphics) { compose(bare, graphics); }),
                "a canvas shows something else than its items");
    }

    /// The figure being drawn straight on the picture, and below and above it the other ones,
    /// which are painted one after the other on transparent pictures; beneath all the casings. A
    /// single picture while none is being drawn.
    void compose(const DrawScene& scene, Gdiplus::Graphics& picture) const
    {
        FigureLayer::setQuality(picture);
        const DrawItem* drawn = scene.selectedItem(scene.currentDataId());
        if (drawn && drawn->isFinished())
            drawn = nullptr;
        const QList<DrawItem*> all = scene.getItemList(BaseDrawType::None, 0);
        const int middle = drawn ? all.indexOf(const_cast<DrawItem*>(drawn)) : all.size();
        const QList<DrawItem*> below = all.mid(0, middle);
        const QList<DrawItem*> above = all.mid(middle + 1);
        const auto casings = [&](Gdiplus::Graphics& target) {
            for (const DrawItem* item : below + above) {
                if (item->figure())
                    item->figure()->drawCasing(target);
            }
        };
        const auto strokes = [](const QList<DrawItem*>& items, Gdiplus::Graphics& target) {
            for (const DrawItem* item : items)
                item->draw(&target);
        };
        if (!drawn)
            return lay(picture, [&](Gdiplus::Graphics& target) {
                casings(target);
                strokes(below, target);
            });
        lay(picture, casings);
        drawn->figure()->drawCasing(picture);
        lay(picture, [&](Gdiplus::Graphics& target) { strokes(below, target); });
        drawn->draw(&picture);
        lay(picture, [&](Gdiplus::Graphics& target) { strokes(above, target); });
    }

    /// Lays what @p paint paints on a transparent picture of the canvas' size over @p picture.
    void lay(Gdiplus::Graphics& picture, const std::function<void(Gdiplus::Graphics&)>& paint) const
    {
        const QSize size = m_scene->canvasSize();
        Gdiplus::Bitmap layer(size.width(), size.height(), &picture);
        {
            Gdiplus::Graphics target(&layer);
            FigureLayer::setQuality(target);
            paint(target);
        }
        picture.DrawImage(&layer, 0, 0);
    }

    /// As over a picture of the canvas' size, to which the video surface clips.
    QImage painted(const std::function<void(Gdiplus::Graphics&)>& paint) const
    {
        QImage picture(kPicture, kPicture, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        QPainter painter(&picture);
        painter.setClipRect(QRect({}, m_scene->canvasSize()));
        Gdiplus::Graphics graphics(&painter);
        paint(graphics);
        require(graphics.GetLastStatus() == Gdiplus::Ok, "painting failed");
        return picture;
    }

    void copy()
    {
        auto copied = std::make_unique<DrawScene>();
        copied->copyItemsFrom(*m_scene);
        const QList<DrawItem*> items = m_scene->getItemList(BaseDrawType::None, 0);
        const QList<DrawItem*> copies = copied->getItemList(BaseDrawType::None, 0);
        require(items.size() == copies.size(), "a copy has another number of items");
        for (int i = 0; i < items.size(); ++i)
            require(pointsOf(*items[i]) == pointsOf(*copies[i]), "a copied figure is another one");
        if (m_bytes.byte() % 2 == 0)
            m_scene = std::move(copied);
    }

    void requireOrder() const
    {
        const DrawItem* selected = m_scene->selectedItem(m_scene->currentDataId());
        require(!selected || m_scene->findItem(selected->itemId()) == selected,
                "the selected item is not on the canvas");
        const DrawItem* firstSelected = nullptr;
        QHash<int, QList<DrawItem*>> byDataId;
        for (DrawItem* item : m_scene->getItemList(BaseDrawType::None, 0)) {
            requireInside(*item);
            byDataId[item->dataId()].append(item);
            if (!firstSelected)
                firstSelected = item->selectedItem();
        }
        require(m_scene->selectedItem(-1) == firstSelected, "another item is selected");
        for (int dataId = -1; dataId < kDataIds; ++dataId)
            require(m_scene->getItemListByDataId(dataId) == byDataId[dataId],
                    "an entry has other items");
    }

    /// What lies in the figures' space lies on the canvas.
    void requireInside(const DrawItem& item) const
    {
        if (!item.figure())
            return;
        const QVector<QPoint> points = pointsOf(item);
        const QVector<QPoint> drawn = item.figure()->canvasPoints();
        require(item.figure()->canvasSize() == m_scene->canvasSize() &&
                    drawn.size() == points.size(),
                "a figure is drawn on another canvas");
        constexpr int extent = DrawGeometry::kNormalizedExtent + 1;
        const QRect canvas({0, 0}, m_scene->canvasSize() + QSize(1, 1));
        for (int i = 0; i < points.size(); ++i)
            require(!QRect(0, 0, extent, extent).contains(points[i]) || canvas.contains(drawn[i]),
                    "a point of the figures' space is drawn off the canvas");
    }

    QVector<ItemState> state() const
    {
        QVector<ItemState> items;
        for (const DrawItem* item : m_scene->getItemList(BaseDrawType::None, 0))
            items.append({item->itemId(), item->dataId(), item->parent(), item->figure(),
                          pointsOf(*item), item->isFinished(), item->isSelected(),
                          item->isDrawOver()});
        return items;
    }

    int itemCount() const { return m_scene->itemCount(BaseDrawType::None, 0); }

    /// Mostly the id of an item that there is.
    int id()
    {
        const int number = m_bytes.byte();
        if (number == 255)
            return m_bytes.number();
        const QList<DrawItem*> items = m_scene->getItemList(BaseDrawType::None, 0);
        return items.isEmpty() ? number : items[number % items.size()]->itemId();
    }

    int data() { return m_bytes.byte() % (kDataIds + 1) - 1; }

    /// Mostly on the canvas.
    QPoint point()
    {
        const int x = m_bytes.byte();
        if (x == 255)
            return {m_bytes.number(), m_bytes.number()};
        return {x, m_bytes.byte()};
    }

    InputBytes m_bytes;
    std::unique_ptr<DrawScene> m_scene;
};

} // namespace

void Fuzz::canvas(std::string_view input)
{
    Bench(input).run();
}
