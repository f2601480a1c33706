#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "draw/figurelayer.h"
#include "draw/labelfont.h"
#include "host/gdiplus.h"
#include "tests/support/rulestest.h"

#include <functional>
#include <memory>

using Paint = std::function<void(Gdiplus::Graphics&)>;

namespace
{

constexpr int kCanvas = 200;
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
    }

private slots:
    void cleanupTestCase() { LabelFont::release(); }

    void keepsWhatIsUnchanged()
    {
        FigureLayer layer;
        FigureLayer::Revisions shown{1, 2, 3};
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
        layer.drop();
        QCOMPARE(paint(size), 1);
        ++shown.back();
        QCOMPARE(paint(size), 1);
        QCOMPARE(paint(size, 2), 1);
        QCOMPARE(paint(size, 2), 0);
        QCOMPARE(paint({50, 50}, 2), 1);
        // Without an area nothing can be kept.
        QCOMPARE(paint({0, 0}), 1);
        QCOMPARE(paint({0, 0}), 1);
    }

    void showsTheSameAsAnew_data()
    {
        QTest::addColumn<int>("figures");
        QTest::addColumn<bool>("withForbidenAreas");
        QTest::newRow("many figures") << 150 << false;
        QTest::newRow("few figures") << 6 << false;
        QTest::newRow("figures and forbidden areas") << 60 << true;
    }

    /// Kept or not, the picture is the same, bit by bit, as that of a scene that keeps nothing.
    void showsTheSameAsAnew()
    {
        QFETCH(const int, figures);
        QFETCH(const bool, withForbidenAreas);
        m_figures = figures;
        m_withForbidenAreas = withForbidenAreas;
        while (m_scene->getItemList(BaseDrawType::None, 0).size() < figures)
            addFigure();
        const Paint scene = [this](Gdiplus::Graphics& graphics) { m_scene->draw(&graphics); };
        int compared = 0;
        for (int step = 0; step < kSteps; ++step) {
            change();
            const QImage seen = painted(scene, 1, m_scene->canvasSize());
            const QByteArray where = QByteArray::number(step) + " of " + QTest::currentDataTag();
            if (!withForbidenAreas && m_scene->message().isEmpty()) {
                QVERIFY2(seen == composed(), where.constData());
                ++compared;
            }
            if (step % 2 != 0)
                continue;
            m_scene->dropPainting();
            QVERIFY2(seen == painted(scene, 1, m_scene->canvasSize()), where.constData());
        }
        QVERIFY2(withForbidenAreas || compared > kSteps / 10,
                 qPrintable(QString::number(compared)));
    }

    void paintsRoughlyWhatIsTooMuch_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<int>("rounds");
        QTest::addColumn<int>("lineColors");
        QTest::addColumn<int>("areaColors");
        QTest::newRow("a region") << 100 << 1 << kSmooth << kSmooth;
        QTest::newRow("a tangle") << 8192 << 100 << kSmooth << kRough;
        QTest::newRow("a blot") << 8193 << 1000 << kRough << kNone;
    }

    /// A smooth line, or a forbidden area's smooth edge, mixes its colour with the picture's.
    void paintsRoughlyWhatIsTooMuch()
    {
        QFETCH(const int, points);
        QFETCH(const int, rounds);
        QVector<QPoint> ring;
        for (int i = 0; i < points; ++i) {
            const double angle = 2 * M_PI * rounds * i / points;
            ring.append({int(4096 + 3000 * std::cos(angle)), int(4096 + 3000 * std::sin(angle))});
        }
        addPolygon(1, ring);
        QTEST(colorsAboveTheHint(), "lineColors");
        m_scene->setDrawByDataId(true);
        m_scene->setCurrentDataId(2);
        m_scene->setSelected(addPolygon(2, {})->itemId(), 2);
        QTEST(colorsAboveTheHint(), "areaColors");
        QVERIFY(m_scene->isPointForbidden({kCanvas / 2 + 20, kCanvas / 2}));
    }

private:
    static constexpr int kSteps = 600;

    int random(int bound) { return int(m_random.bounded(bound)); }
    QPoint somewhere() { return {random(kCanvas), random(kCanvas)}; }
    QPoint anywhere() { return {random(8192), random(8192)}; }
    QVector<QPoint> twoPoints() { return {anywhere(), anywhere()}; }

    static void finish(BaseDraw& draw, const QVector<QPoint>& points)
    {
        Figure figure = draw.figure();
        figure.setPoints(points);
        figure.setFinished(true);
        draw.setFigure(figure);
    }

    /// Finished, if it has points; no other one may be drawn over it.
    DrawItem* addPolygon(int dataId, const QVector<QPoint>& points)
    {
        auto item = std::make_unique<DrawItem>(BaseDrawType::Polygon);
        item->setDataId(dataId);
        item->setForbidenAreaType(DrawItemForbidenAreaType::ForbidenOtherItems);
        if (!points.isEmpty())
            finish(*item->figure(), points);
        return m_scene->addItem(std::move(item), 0);
    }

    static constexpr int kNone = 1, kRough = 2, kSmooth = 3;

    /// How many colours are seen in the upper third, the picture's among them.
    int colorsAboveTheHint()
    {
        const QImage seen = painted([this](Gdiplus::Graphics& target) { m_scene->draw(&target); });
        QSet<QRgb> colors;
        for (int i = 0; i < kCanvas * (kCanvas / 3); ++i)
            colors.insert(seen.pixel(i % kCanvas, i / kCanvas));
        return qMin(colors.size(), kSmooth);
    }

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
        item->setLabel(QString("Rule %1").arg(random(99)));
        if (m_withForbidenAreas)
            item->setForbidenAreaType(DrawItemForbidenAreaType(random(4)));
        const int count = 2 + random(4);
        for (int i = 0; i < count; ++i)
            item->figure()->appendPoint(anywhere());
        if (random(2))
            item->figure()->tryFinish();
        const int parent = random(3) == 0 ? random(m_figures) : 0;
        m_scene->addItem(std::move(item), parent);
    }

    /// One thing that an operator, a panel or a document could do.
    void change()
    {
        if (m_scene->getItemList(BaseDrawType::None, 0).isEmpty())
            return addFigure();
        switch (random(8)) {
        case 0:
            return changeItems();
        case 1:
            return changeView();
        case 2:
        case 3:
        case 4:
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
        switch (random(12)) {
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
            return figure.appendPoint(anywhere());
        case 6:
            return figure.setMovePoint(std::nullopt);
        case 7:
            return figure.setMovePoint(random(kCanvas), random(kCanvas));
        case 8:
            figure.addPoint(random(kCanvas), random(kCanvas));
            return;
        case 9:
            return finish(figure, twoPoints());
        case 10:
            return figure.setDirectionPoints(twoPoints());
        default:
            figure.setFigure(some()->figure()->figure());
            figure.setSelected(random(2));
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

    bool isShown(const DrawItem& item) const
    {
        return item.figure() && (!m_byDataId || m_dataId < 1 || item.dataId() == m_dataId);
    }

    /// What there is to see: the figure being drawn straight on the picture, and below and above
    /// it the other ones, which are painted one after the other on transparent pictures.
    QImage composed() const
    {
        const auto paint = [this](Gdiplus::Graphics& picture) {
            FigureLayer::setQuality(picture);
            const QSize size = m_scene->canvasSize();
            Gdiplus::Bitmap below(size.width(), size.height(), &picture);
            Gdiplus::Bitmap above(size.width(), size.height(), &picture);
            const DrawItem* drawn = m_scene->selectedItem(m_dataId);
            {
                Gdiplus::Graphics onBelow(&below);
                Gdiplus::Graphics onAbove(&above);
                FigureLayer::setQuality(onBelow);
                FigureLayer::setQuality(onAbove);
                Gdiplus::Graphics* target = &onBelow;
                for (const DrawItem* item : m_scene->getItemList(BaseDrawType::None, 0)) {
                    if (item == drawn && !item->isFinished())
                        target = &onAbove;
                    else if (isShown(*item))
                        item->draw(target);
                }
            }
            picture.DrawImage(&below, 0, 0);
            if (drawn && !drawn->isFinished())
                drawn->draw(&picture);
            picture.DrawImage(&above, 0, 0);
        };
        return painted(paint, 1, m_scene->canvasSize());
    }

    QRandomGenerator m_random;
    std::unique_ptr<DrawScene> m_scene;
    int m_figures = 0;
    bool m_withForbidenAreas = false;
    bool m_byDataId = false;
    int m_dataId = -1;
};

QTEST_MAIN(TstLayer)
#include "tst_layer.moc"
