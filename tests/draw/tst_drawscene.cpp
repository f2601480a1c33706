#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "draw/labelfont.h"
#include "host/gdiplus.h"
#include "tests/support/rulestest.h"

#include <algorithm>
#include <memory>

using Type = BaseDrawType;
using Forbid = DrawItemForbidenAreaType;
using Points = QVector<QPoint>;

namespace
{

constexpr int kCanvas = 256; // 32 normalized units a pixel, so nothing is rounded

DrawItem* add(DrawScene& scene, Type type, int dataId = 1, int parentId = 0,
              Forbid forbid = Forbid::ForbidenNone)
{
    auto item = std::make_unique<DrawItem>(type);
    item->setDataId(dataId);
    item->setForbidenAreaType(forbid);
    item->setPointLimits(-1, -1);
    item->setLabel(QString("Rule%1").arg(dataId));
    return scene.addItem(std::move(item), parentId);
}

void press(DrawScene& scene, const Points& points)
{
    for (const QPoint& point : points)
        scene.addDrawPoint(DrawScene::DrawMouseLeftPress, point);
}

void rightPress(DrawScene& scene)
{
    scene.addDrawPoint(DrawScene::DrawMouseRightPress, {0, 0});
}

void move(DrawScene& scene, const QPoint& point)
{
    scene.addDrawPoint(DrawScene::DrawMouseMove, point);
}

DrawItem* drawn(DrawScene& scene, Type type, const Points& points)
{
    DrawItem* item = add(scene, type);
    scene.setSelected(item->itemId(), 1);
    press(scene, points);
    rightPress(scene);
    return item;
}

QImage painted(DrawScene& scene)
{
    QImage image(kCanvas, kCanvas, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    Gdiplus::Graphics graphics(&painter);
    scene.draw(&graphics);
    return image;
}

const Points kBox{{20, 20}, {120, 21}, {121, 120}, {21, 119}};

} // namespace

class TstDrawScene : public RulesTest
{
    Q_OBJECT

protected:
    void prepareTest() override
    {
        m_scene = std::make_unique<DrawScene>();
        m_scene->setCanvasSize(kCanvas, kCanvas);
        m_changes =
            std::make_unique<QSignalSpy>(m_scene.get(), &DrawScene::sgnSelectedStatusChange);
    }

private slots:
    void cleanupTestCase() { LabelFont::release(); }

    void drawsARegionByMouse()
    {
        DrawItem* item = add(*m_scene, Type::Polygon);
        press(*m_scene, {{5, 5}});
        QVERIFY(item->getPoints().isEmpty());
        m_scene->setSelected(item->itemId(), 1);
        QCOMPARE(m_scene->message(), QString("Please draw Rule1!"));
        press(*m_scene, {{20, 20}, {120, 20}});
        move(*m_scene, {70, 70});
        QCOMPARE(item->figure()->movePoint().value(), QPoint(70, 70));
        rightPress(*m_scene);
        QVERIFY(!item->isFinished());
        QCOMPARE(m_scene->message(), QString("Please draw Rule1!"));
        QCOMPARE(m_changes->count(), 1);
        press(*m_scene, {{120, 120}});
        rightPress(*m_scene);
        QVERIFY(item->isFinished());
        QCOMPARE(m_scene->message(), QString("Draw Rule1 complete!"));
        QCOMPARE(m_changes->count(), 2);
        press(*m_scene, {{60, 200}});
        rightPress(*m_scene);
        QCOMPARE(item->getPoints(), (Points{{640, 640}, {3840, 640}, {3840, 3840}}));
        QCOMPARE(m_changes->count(), 2);
        m_scene->setSelected(item->itemId(), 1);
        QCOMPARE(m_scene->message(), QString());

        const DrawItem* rectangle = drawn(*m_scene, Type::Rectangle, {{1, 1}, {9, 9}});
        QVERIFY(rectangle->isFinished());
        QCOMPARE(m_scene->message(), QString("Draw Rule1 complete!"));
        m_scene->setSelected(0, 0);
        move(*m_scene, {1, 1});
        QVERIFY_BOTH(!m_scene->selectedItem(-1), m_scene->message().isEmpty());
    }

    void keepsFiguresOutOfOthers()
    {
        drawn(*m_scene, Type::Polygon, kBox);
        Points reversed{{200, 200}, {80, 200}, {80, 80}, {200, 81}};
        std::reverse(reversed.begin(), reversed.end());
        drawn(*m_scene, Type::Polygon, reversed);
        DrawItem* item = add(*m_scene, Type::Polygon, 2, 0, Forbid::ForbidenOtherItems);
        m_scene->setSelected(item->itemId(), 2);
        const QString message = m_scene->message();
        press(*m_scene, {{60, 60}, {100, 100}, {190, 190}});
        QVERIFY(item->getPoints().isEmpty());
        QCOMPARE(m_scene->message(), message);
        press(*m_scene, {{10, 10}, {250, 10}, {250, 240}});
        QCOMPARE(item->getPoints().size(), 3);
        m_scene->setCanvasSize(2 * kCanvas, 2 * kCanvas);
        QVERIFY_BOTH(m_scene->isPointForbidden({120, 120}), m_scene->isPointForbidden({380, 380}));
        QVERIFY(!m_scene->isPointForbidden({480, 100}));
        rightPress(*m_scene);
        QVERIFY_BOTH(item->isFinished(), !m_scene->isPointForbidden({120, 120}));
        m_scene->redrawItem(item->itemId());
        QVERIFY(m_scene->isPointForbidden({120, 120}));
        m_scene->removeItem(item->itemId());
        QVERIFY(!m_scene->isPointForbidden({120, 120}));
    }

    void keepsChildrenInsideTheirParent()
    {
        DrawItem* region = drawn(*m_scene, Type::Polygon, kBox);
        DrawItem* child =
            add(*m_scene, Type::Rectangle, 9, region->itemId(), Forbid::ForbidenOutsideParent);
        QCOMPARE(child->parent(), region);
        QCOMPARE(child->dataId(), region->dataId());
        m_scene->setSelected(child->itemId(), 1);
        QVERIFY_BOTH(m_scene->isPointForbidden({200, 200}), !m_scene->isPointForbidden({60, 60}));
        m_scene->setCanvasSize(2 * kCanvas, 2 * kCanvas);
        QVERIFY_BOTH(!m_scene->isPointForbidden({200, 200}), m_scene->isPointForbidden({10, 60}));
        press(*m_scene, {{300, 300}, {60, 60}, {80, 80}});
        QVERIFY_BOTH(child->isFinished(), !m_scene->isPointForbidden({10, 60}));
    }

    void keepsALanesLinesApart()
    {
        DrawItem* lane = add(*m_scene, Type::VehicleLane, 1, 0, Forbid::ForbidenSelf);
        m_scene->setSelected(lane->itemId(), 1);
        press(*m_scene, {{100, 200}, {120, 40}});
        QVERIFY(!m_scene->isPointForbidden({10, 10}));
        press(*m_scene, {{180, 200}});
        QVERIFY_BOTH(m_scene->isPointForbidden({10, 10}), !m_scene->isPointForbidden({200, 30}));
        m_scene->setCanvasSize(2 * kCanvas, 2 * kCanvas);
        QVERIFY_BOTH(m_scene->isPointForbidden({180, 400}), !m_scene->isPointForbidden({300, 400}));
        press(*m_scene, {{20, 20}});
        QVERIFY(!lane->isFinished());
        press(*m_scene, {{400, 60}});
        QVERIFY_BOTH(lane->isFinished(), !m_scene->isPointForbidden({20, 20}));
    }

    void selectsByEntryWhenAsked()
    {
        DrawItem* first = add(*m_scene, Type::Rectangle, 1);
        DrawItem* second = add(*m_scene, Type::Rectangle, 2);
        m_scene->setDrawByDataId(true);
        m_scene->setSelected(first->itemId(), 2);
        QVERIFY(!m_scene->selectedItem(-1));
        m_scene->setSelected(second->itemId(), 2);
        QVERIFY_BOTH(m_scene->selectedItem(2) == second, !m_scene->selectedItem(1));
    }

    void paintsShadeFiguresAndHint()
    {
        DrawItem* item = add(*m_scene, Type::VehicleLane, 1, 0, Forbid::ForbidenSelf);
        m_scene->setSelected(item->itemId(), 1);
        press(*m_scene, {{64, 250}, {64, 10}, {200, 250}});
        const QImage image = painted(*m_scene);
        const QRgb shaded = qRgb(155, 155, 155);
        QCOMPARE(image.pixel(5, 5), shaded);
        QCOMPARE(image.pixel(250, 5), qRgb(255, 255, 255));
        QCOMPARE(image.pixel(64, 30), qRgb(255, 215, 0));
        // The hint's own shade lies as far from the right border as from the left.
        const int y = kCanvas / 2 - 8;
        int margin = 0;
        while (margin < kCanvas / 2 && image.pixel(kCanvas - 1 - margin, y) == qRgb(255, 255, 255))
            ++margin;
        QVERIFY_BOTH(margin > 20, image.pixel(margin - 2, y) == shaded);
        QVERIFY(qRed(image.pixel(margin + 1, y)) < qRed(shaded));
        m_scene->setSelected(0, 0);
        move(*m_scene, {0, 0});
        QCOMPARE(painted(*m_scene).pixel(5, 5), qRgb(255, 255, 255));
        m_scene->draw(nullptr);
    }

    void finishedListenersMayRemoveTheItem()
    {
        DrawItem* item = add(*m_scene, Type::Rectangle);
        m_scene->setSelected(item->itemId(), 1);
        const int id = item->itemId();
        QObject::connect(m_scene.get(), &DrawScene::sgnSelectedStatusChange, m_scene.get(),
                         [this, id] { m_scene->removeItem(id); });
        press(*m_scene, {{1, 1}, {9, 9}});
        QVERIFY(!m_scene->findItem(id));
    }

private:
    std::unique_ptr<DrawScene> m_scene;
    std::unique_ptr<QSignalSpy> m_changes;
};

QTEST_MAIN(TstDrawScene)
#include "tst_drawscene.moc"
