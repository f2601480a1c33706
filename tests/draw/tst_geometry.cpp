#include "draw/drawgeometry.h"
#include "draw/forbidenarea.h"
#include "host/gdiplus.h"
#include "tests/support/rulestest.h"

#include <climits>
#include <cmath>
#include <optional>
#include <utility>

using namespace DrawGeometry;

namespace
{

QPoint randomPoint(QRandomGenerator& random, const QSize& canvas)
{
    return {random.bounded(canvas.width()), random.bounded(canvas.height())};
}

double distanceToLine(const QPoint& p0, const QPoint& p1, const QPoint& p)
{
    const QPointF along = p1 - p0;
    const QPointF off = p - p0;
    return std::fabs(along.x() * off.y() - along.y() * off.x()) / std::hypot(along.x(), along.y());
}

} // namespace

class TstGeometry : public RulesTest
{
    Q_OBJECT

private slots:
    void convertsBetweenSpaces()
    {
        const auto check = [](const QSize& canvas, const QPoint& pixel, const QPoint& normalized,
                              const QPoint& back) {
            QCOMPARE(toNormalized(pixel, canvas).value(), normalized);
            QCOMPARE(toCanvas(normalized, canvas), back);
        };
        check({1024, 512}, {512, 128}, {4096, 2048}, {512, 128});
        check({1000, 300}, {1, 299}, {8, 8164}, {0, 298});
        check({1000, 300}, {-1, -1}, {-8, -27}, {0, 0});
        check({1, 1}, {INT_MAX, INT_MIN}, {INT_MAX, INT_MIN}, {262143, -262144});
        QVERIFY_BOTH(!toNormalized({5, 5}, {0, 100}), !toNormalized({5, 5}, {100, 0}));
        QCOMPARE(toCanvas({8192, 8192}, {0, 0}), QPoint(0, 0));
        QCOMPARE(toCanvas({INT_MAX, INT_MIN}, {32767, 32767}), QPoint(INT_MAX, INT_MIN));
    }

    void findsCrossings()
    {
        const auto check = [](const QLine& a, const QLine& b, const std::optional<QPoint>& at) {
            QVERIFY(segmentsCross(a, b) == at);
            QVERIFY(segmentsCross(b, a) == at);
        };
        const QLine rising(0, 0, 100, 100);
        check(rising, {0, 100, 100, 0}, QPoint(50, 50));
        check({0, 0, 9, 3}, {0, 3, 9, 0}, QPoint(4, 1));     // truncated
        check(rising, {100, 100, 200, 0}, QPoint(100, 100)); // touching
        check(rising, {0, 90, 30, 60}, {});                  // beyond an end
        check(rising, {50, 50, 150, 150}, {});               // parallel
        check({50, 0, 50, 100}, {0, 50, 100, 51}, {});       // vertical
        check({5, 0, 5, 9}, {5, 3, 5, 12}, {});
        QVERIFY(segmentsCross({INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                              {INT_MIN, INT_MAX, INT_MAX, INT_MIN}));
    }

    void measuresDirections()
    {
        const QPoint around[] = {{10, 0},  {10, 10},   {0, 10},  {-10, 10},
                                 {-10, 0}, {-10, -10}, {0, -10}, {10, -10}};
        double degrees = 0;
        for (const QPoint& to : around) {
            const QLine line({-300, 77}, QPoint(-300, 77) + to);
            QVERIFY(std::fabs(directionDegrees(line) - degrees) < 1e-4);
            degrees += 45;
        }
    }

    void laneKeepsItsFourthPointOnTheSideOfTheThird()
    {
        QRandomGenerator random(2);
        const QSize canvas(640, 360);
        int forbiddenPoints = 0;
        for (int i = 0; i < 300; ++i) {
            const QPoint p0 = randomPoint(random, canvas);
            const QPoint p1 = randomPoint(random, canvas);
            const QPoint p2 = randomPoint(random, canvas);
            const int allowed = side(p0, p1, p2);
            if (p0 == p1 || allowed == 0)
                continue;
            Gdiplus::GraphicsPath path;
            ForbidenArea::addOutline(path, laneForbiddenPolygon(p0, p1, p2, canvas));
            for (int k = 0; k < 100; ++k) {
                const QPoint p3 = randomPoint(random, canvas);
                if (distanceToLine(p0, p1, p3) < 0.01)
                    continue;
                const bool forbidden = path.IsVisible(p3.x(), p3.y());
                forbiddenPoints += forbidden ? 1 : 0;
                QCOMPARE(forbidden, side(p0, p1, p3) != allowed);
            }
        }
        QVERIFY(forbiddenPoints > 1000);
        QVERIFY(laneForbiddenPolygon({0, 0}, {10, 10}, {20, 20}, canvas).isEmpty());
        QVERIFY(laneForbiddenPolygon({0, 0}, {10, 10}, {20, 0}, {0, 0}).isEmpty());
    }

    void completesParallelograms()
    {
        const std::pair<QPoint, QVector<QPoint>> rows[] = {
            {{250, 200}, {{250, 200}, {150, 180}}},      {{60, 200}, {{100, 200}, {0, 180}}},
            {{250, 5}, {{250, 20}, {150, 0}}},           {{520, 330}, {{500, 320}, {400, 300}}},
            {{INT_MAX, INT_MIN}, {{500, 20}, {400, 0}}},
        };
        for (const auto& [click, rest] : rows)
            QCOMPARE(completeParallelogram({100, 100}, {200, 120}, click, {400, 300}), rest);
    }
};

QTEST_MAIN(TstGeometry)
#include "tst_geometry.moc"
