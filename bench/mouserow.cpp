#include "bench/benchrow.h"
#include "bench/figurescene.h"
#include "draw/drawscene.h"
#include "draw/figurecorrector.h"

#include <QCoreApplication>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <map>
#include <memory>

namespace
{

constexpr int kFigures = 7680; // as many of six points as a scene takes

QPoint mousePosition(int step)
{
    return {100 + step % 1700, 100 + step % 900};
}

void moveOverCanvas(benchmark::State& state, int size)
{
    static std::map<int, std::unique_ptr<DrawScene>> made;
    std::unique_ptr<DrawScene>& scene = made[size];
    if (!scene) {
        scene = std::make_unique<DrawScene>();
        FigureScene::fill(*scene, FigureScene::figures(size), size / 2);
    }
    int step = 0;
    for (auto _ : state)
        scene->addDrawPoint(DrawScene::DrawMouseMove, mousePosition(++step));
}

void moveOverGraphicsScene(benchmark::State& state, int size)
{
    static std::map<int, std::unique_ptr<QGraphicsScene>> made;
    std::unique_ptr<QGraphicsScene>& scene = made[size];
    if (!scene) {
        scene = std::make_unique<QGraphicsScene>();
        FigureScene::fill(*scene, FigureScene::figures(size));
        scene->items(QPointF(1, 1)); // has the index built
    }
    int step = 0;
    for (auto _ : state) {
        QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMouseMove);
        event.setScenePos(mousePosition(++step));
        QCoreApplication::sendEvent(scene.get(), &event);
    }
}

/// All figures are of the current entry, so that each under the mouse is looked at.
void hoverOverCanvas(benchmark::State& state, int size)
{
    DrawScene scene;
    FigureScene::fill(scene, FigureScene::figures(size));
    scene.setCurrentDataId(0);
    FigureCorrector corrector;
    corrector.setScene(&scene, [](const DrawItem&) { return DrawItemForbidenAreaType(); });
    int step = 0;
    corrector.hover(mousePosition(step));
    for (auto _ : state) {
        scene.addDrawPoint(DrawScene::DrawMouseMove, mousePosition(++step));
        corrector.hover(mousePosition(step));
    }
}

void hoverOverGraphicsScene(benchmark::State& state, int size)
{
    QGraphicsScene scene;
    FigureScene::fill(scene, FigureScene::figures(size));
    const QList<QGraphicsItem*> items = scene.items(); // has the index built
    for (QGraphicsItem* item : items)
        item->setAcceptHoverEvents(true);
    int step = 0;
    for (auto _ : state) {
        QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMouseMove);
        event.setScenePos(mousePosition(++step));
        QCoreApplication::sendEvent(&scene, &event);
    }
}

} // namespace

void addMouseRow(BenchRows& rows)
{
    rows.push_back({"Hover", "a move over items of a QGraphicsScene that take it", 0.2, kFigures, 0,
                    hoverOverCanvas, hoverOverGraphicsScene});
    rows.push_back({"Mouse", "a move delivered to a QGraphicsScene", 0.2, kFigures, kFigures,
                    moveOverCanvas, moveOverGraphicsScene});
}
