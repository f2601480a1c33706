#include "fuzz/fault.h"
#include "fuzz/harnesses.h"
#include "fuzz/inputbytes.h"

#include "draw/basedraw.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "draw/labelfont.h"
#include "host/gdiplus.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

using Fuzz::InputBytes;
using Fuzz::require;

namespace
{

constexpr int kMostOperations = 600;
constexpr int kMostItems = 120;
constexpr int kPicture = 160;
constexpr int kOperations = 18;

/// A canvas and the hand of an operator and a program on it.
class Bench
{
public:
    explicit Bench(std::string_view input)
        : m_bytes(input),
          m_scene(std::make_unique<DrawScene>()),
          m_picture(kPicture, kPicture, QImage::Format_ARGB32_Premultiplied)
    {
        m_scene->setCanvasSize(256, 256);
    }

    void run()
    {
        for (int count = 0; count < kMostOperations && !m_bytes.atEnd(); ++count) {
            operate(m_bytes.byte() % kOperations);
            requireOrder();
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
            return m_scene->addDrawPoint(DrawScene::DrawMouseRightPress, point());
        case 7:
            return m_scene->addDrawPoint(DrawScene::DrawMouseMove, point());
        case 8:
            return m_scene->redrawItem(id());
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
        default:
            if (item)
                change(*item);
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
        const int before = itemCount();
        m_scene->removeItem(itemId);
        require(!m_scene->findItem(itemId), "a removed item is still found");
        require(exists ? itemCount() < before : itemCount() == before, "the wrong items went");
    }

    void press(const QPoint& at)
    {
        const DrawItem* item = m_scene->selectedItem(m_scene->currentDataId());
        const bool refused = !item || item->isFinished() || m_scene->isPointForbidden(at);
        const QVector<QPoint> before = item ? pointsOf(*item) : QVector<QPoint>();
        m_scene->addDrawPoint(DrawScene::DrawMouseLeftPress, at);
        if (!item)
            return;
        const QVector<QPoint> after = pointsOf(*item);
        require(!refused || after == before, "a refused point changed the figure");
        require(after.mid(0, before.size()) == before, "a point changed the ones before it");
        if (after.size() == before.size() + 1 && isKeptOnCanvas(*item, at))
            requireInside(after.last());
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

    static void requireInside(const QPoint& point)
    {
        constexpr int extent = DrawGeometry::kNormalizedExtent;
        require(QRect(0, 0, extent + 1, extent + 1).contains(point),
                "a point on the canvas lies outside of the figures' space");
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

    void paint()
    {
        QPainter painter(&m_picture);
        Gdiplus::Graphics graphics(&painter);
        m_scene->draw(&graphics);
        require(graphics.GetLastStatus() == Gdiplus::Ok, "painting failed");
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

    int data() { return m_bytes.byte() % 6 - 1; }

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
    QImage m_picture;
};

} // namespace

void Fuzz::canvas(std::string_view input)
{
    Bench(input).run();
}
