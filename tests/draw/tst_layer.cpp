#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "draw/figurelayer.h"
#include "draw/labelfont.h"
#include "host/gdiplus.h"
#include "tests/support/rulestest.h"

#include <functional>
#include <memory>

namespace
{

constexpr int kCanvas = 200;

QImage painted(const std::function<void(Gdiplus::Graphics&)>& paint, int pixelRatio = 1)
{
    QImage image(kCanvas * pixelRatio, kCanvas * pixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(QColor(90, 160, 30));
    QPainter painter(&image);
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
        m_scene = std::make_unique<DrawScene>();
        m_scene->setCanvasSize(kCanvas, kCanvas);
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
    /// Finished, if it has points; no other one may be drawn over it.
    DrawItem* addPolygon(int dataId, const QVector<QPoint>& points)
    {
        auto item = std::make_unique<DrawItem>(BaseDrawType::Polygon);
        item->setDataId(dataId);
        item->setForbidenAreaType(DrawItemForbidenAreaType::ForbidenOtherItems);
        Figure figure = item->figure()->figure();
        figure.setPoints(points);
        figure.setFinished(!points.isEmpty());
        item->figure()->setFigure(figure);
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

    std::unique_ptr<DrawScene> m_scene;
};

QTEST_MAIN(TstLayer)
#include "tst_layer.moc"
