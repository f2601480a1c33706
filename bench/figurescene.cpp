#include "bench/figurescene.h"

#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <QFont>
#include <QGraphicsPolygonItem>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QTransform>
#include <cmath>
#include <memory>

namespace
{

constexpr int kCorners = 6;
constexpr int kExtent = 8192;

std::unique_ptr<DrawItem> item(const FigureScene::Shape& figure, bool finished)
{
    auto made = std::make_unique<DrawItem>(BaseDrawType::Polygon);
    made->setPointLimits(3, 16);
    made->setLabel(figure.label);
    const int count = finished ? figure.outline.size() : figure.outline.size() - 1;
    for (int i = 0; i < count; ++i) {
        const QPoint& point = figure.outline[i];
        made->figure()->appendPoint({point.x() * kExtent / FigureScene::kPicture.width(),
                                     point.y() * kExtent / FigureScene::kPicture.height()});
    }
    made->figure()->setFinished(finished);
    return made;
}

/// With labels at each of @p places; returns the polygon in the middle.
QGraphicsPolygonItem* addPolygons(QGraphicsScene& scene,
                                  const std::vector<FigureScene::Shape>& figures, const QPen& pen,
                                  const QVector<QPoint>& places)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(16);
    QGraphicsPolygonItem* middle = nullptr;
    scene.setSceneRect(QRect({}, FigureScene::kPicture));
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const QPolygonF outline(figures[i].outline);
        auto* polygon = scene.addPolygon(outline, pen);
        const double angle = -QLineF(outline[0], outline[1]).angle();
        for (const QPoint& place : places) {
            auto* text = scene.addSimpleText(figures[i].label, font);
            text->setBrush(pen.color());
            text->setPos(outline[0] + QTransform().rotate(angle).map(QPointF(place)));
            text->setRotation(angle);
        }
        if (i == figures.size() / 2)
            middle = polygon;
    }
    return middle;
}

} // namespace

std::vector<FigureScene::Shape> FigureScene::figures(int count)
{
    QRandomGenerator random(7);
    std::vector<Shape> made;
    for (int number = 1; number <= count; ++number) {
        const QPoint centre(random.bounded(100, kPicture.width() - 100),
                            random.bounded(100, kPicture.height() - 100));
        const int radius = random.bounded(20, 90);
        Shape figure{{}, QStringLiteral("Rule %1").arg(number)};
        for (int i = 0; i < kCorners; ++i) {
            const double angle = i * 2 * std::acos(-1.0) / kCorners + number;
            figure.outline.append(
                centre + QPoint(int(radius * std::cos(angle)), int(radius * std::sin(angle))));
        }
        made.push_back(figure);
    }
    return made;
}

void FigureScene::fill(DrawScene& scene, const std::vector<Shape>& figures, int unfinished)
{
    scene.setCanvasSize(kPicture.width(), kPicture.height());
    for (int i = 0; i < int(figures.size()); ++i) {
        const bool finished = i != unfinished;
        const DrawItem* added = scene.addItem(item(figures[std::size_t(i)], finished), 0);
        if (!finished)
            scene.setSelected(added->itemId(), -1);
    }
}

QPen FigureScene::casing()
{
    return QPen(QColor(255, 255, 255, 0xEE), 4, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin);
}

QVector<QPoint> FigureScene::around()
{
    return {{-1, -1}, {-1, 1}, {1, -1}, {1, 1}};
}

QGraphicsPolygonItem* FigureScene::fill(QGraphicsScene& scene, const std::vector<Shape>& figures)
{
    QPen pen(kBlue, 2);
    pen.setJoinStyle(Qt::MiterJoin);
    return addPolygons(scene, figures, pen, {{0, 0}});
}

QGraphicsPolygonItem* FigureScene::fillBeneath(QGraphicsScene& scene,
                                               const std::vector<Shape>& figures)
{
    return addPolygons(scene, figures, casing(), around());
}
