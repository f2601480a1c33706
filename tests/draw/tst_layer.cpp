#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "draw/figurelayer.h"
#include "draw/labelfont.h"
#include "host/gdiplus.h"
#include "tests/support/rulestest.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>

using Paint = std::function<void(Gdiplus::Graphics&)>;

namespace
{

constexpr int kCanvas = 200;
constexpr int kFigures = 150; // enough that layers are kept, also on both sides of one
constexpr int kDataIds = 3;

/// As over a picture of @p size pixels, to which the video surface clips.
QImage painted(const Paint& paint, int pixelRatio = 1, const QSize& size = {kCanvas, kCanvas})
{
    QImage image(kCanvas * pixelRatio, kCanvas * pixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(QColor(90, 160, 30));
    QPainter painter(&image);
    painter.setClipRect(QRect({}, size));
    Gdiplus::Graphics graphics(&painter);
    paint(graphics);
    return image;
}

/// The largest difference of a pixel's red, green or blue; @p except is not looked at.
int difference(const QImage& a, const QImage& b, const QRect& except)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            if (p != q && !except.contains(x, y))
                largest =
                    std::max({largest, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                              std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return largest;
}

} // namespace

class TstLayer : public RulesTest
{
    Q_OBJECT

protected:
    void prepareTest() override
    {
        m_random.seed(5);
        m_scene = std::make_unique<DrawScene>();
        m_scene->setCanvasSize(kCanvas, kCanvas);
        m_byDataId = false;
        m_dataId = -1;
        while (m_scene->getItemList(BaseDrawType::None, 0).size() < kFigures)
            addFigure();
    }

private slots:
    void cleanupTestCase() { LabelFont::release(); }

    void keepsWhatIsUnchanged()
    {
        FigureLayer layer;
        FigureLayer::Revisions shown(kFigures, 1);
        int count = 0;
        const auto paint = [&](const QSize& size, int pixelRatio = 1) {
            count = 0;
            painted(
                [&](Gdiplus::Graphics& graphics) {
                    layer.draw(graphics, size, shown, [&](Gdiplus::Graphics&) { ++count; });
                },
                pixelRatio);
            return count;
        };
        const QSize size(kCanvas, kCanvas);
        QCOMPARE(paint(size), 1);
        QCOMPARE(paint(size), 0);
        ++shown.back();
        QCOMPARE(paint(size), 1);
        QCOMPARE(paint(size, 2), 1);
        QCOMPARE(paint(size, 2), 0);
        QCOMPARE(paint({50, 50}, 2), 1);
        // Without an area nothing can be kept, and little is not worth it.
        QCOMPARE(paint({0, 0}), 1);
        QCOMPARE(paint({0, 0}), 1);
        shown.resize(3);
        QCOMPARE(paint(size), 1);
        QCOMPARE(paint(size), 1);
    }

    void paintsTheSameAsAnew_data()
    {
        QTest::addColumn<bool>("withForbidenAreas");
        QTest::newRow("figures") << false;
        QTest::newRow("figures and forbidden areas") << true;
    }

    void paintsTheSameAsAnew()
    {
        QFETCH(bool, withForbidenAreas);
        m_withForbidenAreas = withForbidenAreas;
        const Paint scene = [this](Gdiplus::Graphics& graphics) { m_scene->draw(&graphics); };
        for (int step = 0; step < 600; ++step) {
            change();
            const QImage kept = painted(scene, 1, m_scene->canvasSize());
            if (step % 3 != 0)
                continue;
            // A picture of another resolution drops what was kept for this one.
            painted(scene, 2);
            QVERIFY2(kept == painted(scene, 1, m_scene->canvasSize()),
                     qPrintable(QString::number(step)));
            if (!withForbidenAreas)
                QVERIFY2(differenceFromDirect(kept) <= kRounding,
                         qPrintable(QString::number(step)));
        }
    }

private:
    /// Where several smooth edges meet, a layer's pixels, of 256 levels, are rounded otherwise.
    static constexpr int kRounding = 4;

    int random(int bound) { return int(m_random.bounded(bound)); }
    QPoint somewhere() { return {random(kCanvas), random(kCanvas)}; }

    DrawItem* some()
    {
        const QList<DrawItem*> items = m_scene->getItemList(BaseDrawType::None, 0);
        return items[random(items.size())];
    }

    void addFigure()
    {
        auto item = std::make_unique<DrawItem>(BaseDrawType(1 + random(9)));
        item->setDataId(1 + random(kDataIds));
        item->setPointLimits(-1, -1);
        item->setLabel(QStringLiteral("Rule %1").arg(random(99)));
        if (m_withForbidenAreas)
            item->setForbidenAreaType(DrawItemForbidenAreaType(random(4)));
        const int count = 2 + random(4);
        for (int i = 0; i < count; ++i)
            item->figure()->appendPoint({random(8192), random(8192)});
        item->figure()->tryFinish();
        const int parent = random(3) == 0 ? random(kFigures) : 0;
        m_scene->addItem(std::move(item), parent);
    }

    /// One thing that an operator, a panel or a document could do.
    void change()
    {
        switch (random(6)) {
        case 0:
            return changeItems();
        case 1:
            return changeView();
        case 2:
            return changeFigure(*some());
        default:
            return draw();
        }
    }

    void changeItems()
    {
        DrawItem* item = some();
        switch (random(4)) {
        case 0:
            return m_scene->removeItem(item->itemId());
        case 1:
            return item->replaceFigure(BaseDrawType(1 + random(9)));
        case 2:
            return item->setDataId(1 + random(kDataIds));
        default:
            return addFigure();
        }
    }

    void changeView()
    {
        switch (random(8)) {
        case 0:
            m_byDataId = !m_byDataId;
            return m_scene->setDrawByDataId(m_byDataId);
        case 1:
            m_dataId = random(kDataIds + 1);
            return m_scene->setCurrentDataId(m_dataId);
        case 2:
            return m_scene->setCanvasSize(kCanvas - random(2) * 20, kCanvas);
        default:
            return m_scene->setSelected(some()->itemId(), m_dataId);
        }
    }

    void changeFigure(DrawItem& item)
    {
        BaseDraw& figure = *item.figure();
        switch (random(9)) {
        case 0:
            return figure.setLabel(QString::number(random(99)));
        case 1:
            return figure.setDirection(BaseDrawDirectionType(random(4)));
        case 2:
            return figure.setEdgeLabelMode(EdgeLabelMode(random(2)));
        case 3:
            return figure.setSelected(random(2));
        case 4:
            return figure.setFinished(figure.pointCount() > 1 && random(2));
        case 5:
            return figure.appendPoint({random(8192), random(8192)});
        case 6:
            return figure.setMovePoint(std::nullopt);
        case 7:
            figure.addPoint(random(kCanvas), random(kCanvas));
            return figure.setMovePoint(random(kCanvas), random(kCanvas));
        default:
            return figure.copyStateFrom(*some()->figure());
        }
    }

    void draw()
    {
        const DrawItem* selected = m_scene->selectedItem(m_dataId);
        switch (random(8)) {
        case 0:
            return m_scene->addDrawPoint(DrawScene::DrawMouseLeftPress, somewhere());
        case 1:
            return m_scene->addDrawPoint(DrawScene::DrawMouseRightPress, somewhere());
        case 2:
            return m_scene->redrawItem(selected ? selected->itemId() : some()->itemId());
        default:
            return m_scene->addDrawPoint(DrawScene::DrawMouseMove, somewhere());
        }
    }

    int differenceFromDirect(const QImage& picture)
    {
        const Paint paint = [this](Gdiplus::Graphics& graphics) {
            FigureLayer::setQuality(graphics);
            for (const DrawItem* item : m_scene->getItemList(BaseDrawType::None, 0)) {
                if (!m_byDataId || m_dataId < 1 || item->dataId() == m_dataId)
                    item->draw(&graphics);
            }
        };
        const QImage direct = painted(paint, 1, m_scene->canvasSize());
        const QRect hint(0, kCanvas / 2 - 20, kCanvas, 40);
        return difference(picture, direct, m_scene->message().isEmpty() ? QRect() : hint);
    }

    QRandomGenerator m_random;
    std::unique_ptr<DrawScene> m_scene;
    bool m_withForbidenAreas = false;
    bool m_byDataId = false;
    int m_dataId = -1;
};

QTEST_MAIN(TstLayer)
#include "tst_layer.moc"
