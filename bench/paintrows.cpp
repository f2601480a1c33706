#include "bench/benchrow.h"
#include "bench/figurescene.h"
#include "draw/drawscene.h"
#include "host/gdiplus.h"

#include <QGraphicsPolygonItem>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <map>
#include <memory>

using FigureScene::kPicture;
using FigureScene::Shape;

namespace
{

constexpr int kFigures = 1000;
constexpr int kMost = 3000; // a figure for each entry

QImage picture()
{
    QImage image(kPicture, QImage::Format_RGB32);
    image.fill(Qt::darkGray);
    return image;
}

void paint(DrawScene& scene, QImage& image)
{
    QPainter painter(&image);
    Gdiplus::Graphics graphics(&painter);
    scene.draw(&graphics);
}

void render(QGraphicsScene& scene, QImage& image)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, QRectF(), QRectF({}, kPicture));
}

QPoint mousePosition(int step)
{
    return {600 + step % 200, 500 + step % 70};
}

void paintSteady(benchmark::State& state, int size)
{
    DrawScene scene;
    FigureScene::fill(scene, FigureScene::figures(size));
    QImage image = picture();
    paint(scene, image);
    for (auto _ : state)
        paint(scene, image);
}

void renderSteady(benchmark::State& state, int size)
{
    QGraphicsScene scene;
    FigureScene::fillBeneath(scene, FigureScene::figures(size));
    FigureScene::fill(scene, FigureScene::figures(size));
    QImage image = picture();
    render(scene, image);
    for (auto _ : state)
        render(scene, image);
}

void paintChanging(benchmark::State& state, int size)
{
    DrawScene scene;
    FigureScene::fill(scene, FigureScene::figures(size), size / 2);
    QImage image = picture();
    paint(scene, image);
    int step = 0;
    for (auto _ : state) {
        scene.addDrawPoint(DrawScene::DrawMouseMove, mousePosition(++step));
        paint(scene, image);
    }
}

void renderChanging(benchmark::State& state, int size)
{
    QGraphicsScene scene;
    QGraphicsPolygonItem* beneath = FigureScene::fillBeneath(scene, FigureScene::figures(size));
    QGraphicsPolygonItem* moving = FigureScene::fill(scene, FigureScene::figures(size));
    QPolygonF outline = moving->polygon();
    QImage image = picture();
    render(scene, image);
    int step = 0;
    for (auto _ : state) {
        outline.last() = mousePosition(++step);
        beneath->setPolygon(outline);
        moving->setPolygon(outline);
        render(scene, image);
    }
}

void paintFirst(benchmark::State& state, int size)
{
    DrawScene original;
    FigureScene::fill(original, FigureScene::figures(size));
    QImage image = picture();
    for (auto _ : state) {
        state.PauseTiming();
        auto scene = std::make_unique<DrawScene>();
        scene->copyItemsFrom(original);
        state.ResumeTiming();
        paint(*scene, image);
        state.PauseTiming();
        scene.reset();
        state.ResumeTiming();
    }
}

/// Lines with @p pen, and the label in its colour at each of @p places.
void strokeFigure(QPainter& painter, const Shape& figure, const QPen& pen,
                  const QVector<QPoint>& places)
{
    painter.setPen(pen);
    for (int i = 0; i < figure.outline.size(); ++i)
        painter.drawLine(figure.outline[i], figure.outline[(i + 1) % figure.outline.size()]);
    painter.save();
    painter.translate(figure.outline[0]);
    painter.rotate(-QLineF(figure.outline[0], figure.outline[1]).angle());
    const int ascent = painter.fontMetrics().ascent();
    for (const QPoint& place : places)
        painter.drawText(place + QPoint(3, ascent), figure.label);
    painter.restore();
}

void paintStraight(benchmark::State& state, int size)
{
    const std::vector<Shape> figures = FigureScene::figures(size);
    const QPen pen(FigureScene::kBlue, 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    QFont font = QGuiApplication::font();
    font.setPixelSize(16);
    QImage image = picture();
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(font);
        for (const Shape& figure : figures)
            strokeFigure(painter, figure, FigureScene::casing(), FigureScene::around());
        for (const Shape& figure : figures)
            strokeFigure(painter, figure, pen, {{0, 0}});
    }
}

} // namespace

void addPaintRows(BenchRows& rows)
{
    const char* const scene = "QGraphicsScene, antialiased";
    rows.push_back({"Paint, steady", scene, 0.025, kFigures, kMost, paintSteady, renderSteady});
    rows.push_back(
        {"Paint, changing", scene, 0.04, kFigures, kMost, paintChanging, renderChanging});
    rows.push_back({"Paint, first", "the same lines and texts with one QPainter", 1.1, kFigures,
                    kMost, paintFirst, paintStraight});
}
