#include "draw/basedraw.h"
#include "draw/crosstestdraw.h"
#include "draw/figurekinds.h"
#include "draw/labelfont.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"

#include <climits>

using Type = BaseDrawType;
using Direction = BaseDrawDirectionType;
using Points = QVector<QPoint>;
using kql::Json::Value;

namespace
{

constexpr QRgb kNormal = 0xFF007DFF;
constexpr QRgb kSelected = 0xFFFFD700;
constexpr QRgb kRed = 0xFFFF0000;
constexpr int kExtent = 8192;
constexpr int kPixels = 128; // 64 units of the normalized space each, so nothing is rounded

std::shared_ptr<BaseDraw> makeFigure(Type type, int canvas, const Points& clicks = {})
{
    auto figure = createDraw(type);
    if (type == Type::Polygon)
        figure->setPointLimits(3, INT_MAX);
    figure->setCanvasSize(canvas, canvas);
    for (const QPoint& click : clicks)
        figure->addPoint(click.x(), click.y());
    return figure;
}

/// Of the case that runs, whose name begins with it.
Type kind()
{
    const QStringList kinds{"Polygon",   "DirectionLine",   "Rectangle",
                            "Ruler",     "HorizontalRuler", "VerticalRuler",
                            "Direction", "VehicleLane",     "Parallelogram"};
    const QString name = QString(QTest::currentDataTag()).section(' ', 1, 1).remove(',');
    return Type(kinds.indexOf(name) + 1);
}

Points pointsOf(const BaseDraw& figure)
{
    Points points;
    figure.getPoints(points);
    return points;
}

QImage painted(BaseDraw& figure)
{
    QImage image(kPixels, kPixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    Gdiplus::Graphics graphics(&painter);
    figure.draw(&graphics);
    return image;
}

QImage filled(const QVector<QRect>& areas, QRgb color)
{
    QImage image(kPixels, kPixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (const QRect& area : areas)
        painter.fillRect(area, QColor::fromRgba(color));
    return image;
}

int inked(const QImage& image, const QRect& area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += qAlpha(image.pixel(x, y)) ? 1 : 0;
    }
    return count;
}

/// Notes the texts that figures have translated.
class TextNotes : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        if (QLatin1String(context).endsWith(QString("Draw")))
            notes << QLatin1String(context) + QString("/") + QLatin1String(text);
        return {};
    }
    bool isEmpty() const override { return false; }

    mutable QStringList notes;
};

} // namespace

class TstFigures : public RulesTest
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { LabelFont::release(); }

    void takesPoints_data() { Fixtures::addRows("figures/clicks.json"); }

    /// What is refused comes last; by default a figure has the points of the clicks, and is
    /// finished by them.
    void takesPoints()
    {
        QFETCH(const Value, fixture);
        const auto figure = makeFigure(kind(), kExtent);
        if (fixture.isMember("maximum"))
            figure->setPointLimits(2, fixture["maximum"].asInt());
        const Points clicks = Fixtures::pointsOf(fixture["clicks"]);
        for (const QPoint& click : clicks)
            QVERIFY(!figure->addPoint(click.x(), click.y()));
        const Points points =
            fixture.isMember("points") ? Fixtures::pointsOf(fixture["points"]) : clicks;
        QCOMPARE(pointsOf(*figure), points);
        QCOMPARE(figure->isFinished(), !fixture.isMember("isFinished"));
        for (const QPoint& click : Fixtures::pointsOf(fixture["refused"]))
            QVERIFY(figure->addPoint(click.x(), click.y()));
        QVERIFY_BOTH(figure->tryFinish(), figure->addPoint(2000, 2000));
        QCOMPARE(pointsOf(*figure), points);
        figure->clear();
        QVERIFY_BOTH(!figure->isFinished(), pointsOf(*figure).isEmpty());
    }

    void valuesTellWhatTheyRefuse()
    {
        Figure figure(Type::Polygon, {3, 4});
        const Points corners{{0, 0}, {8, 0}, {8, 8}};
        for (const QPoint& corner : corners)
            QVERIFY(figure.addPoint(corner));
        figure.setDirectionPoints({{1, 1}, {2, 2}});
        const Figure before = figure;
        figure.setFinished(true);
        for (const int index : {-1, 3})
            QVERIFY(!figure.pointAt(index) && !figure.setPoint(index, {}));
        QVERIFY(!figure.addPoint({5, 5}));   // finished
        QVERIFY(!figure.removePoint(0));     // needs all it has
        QVERIFY(!figure.insertPoint(4, {})); // no such place
        figure.setFinished(false);
        QVERIFY(figure == before);

        QVERIFY(figure.insertPoint(1, {4, 4}) && figure.setPoint(3, {9, 9}));
        QCOMPARE(figure.points(), (Points{{0, 0}, {4, 4}, {8, 0}, {9, 9}}));
        QVERIFY(!figure.insertPoint(0, {})); // full
        QVERIFY(figure.directionPoints() != before.directionPoints() && figure != before);
        QVERIFY(figure.removePoint(1) && figure.setPoint(2, {8, 8}));
        QCOMPARE(figure.outline(), (corners + Points{{0, 0}}));
        const auto draw = createDraw(Type::Polygon);
        QVERIFY(draw->setFigure(figure) && draw->figure() == figure);
        QVERIFY(!draw->setFigure(Figure(Type::Ruler)) && draw->figure() == figure);
    }

    void staffHasNoRubberBandBeforeItsFirstPoint()
    {
        const auto staff = makeFigure(Type::VerticalRuler, kExtent);
        staff->setMovePoint(50, 60);
        QVERIFY(!staff->movePoint());
        staff->addPoint(10, 20);
        staff->setMovePoint(50, 60);
        QCOMPARE(staff->movePoint().value(), QPoint(10, 60));
        const quint64 shown = staff->revision();
        staff->setMovePoint(std::nullopt);
        QVERIFY_BOTH(!staff->movePoint(), staff->revision() != shown);

        // A canvas without an area leaves the end where it was.
        staff->setMovePoint(QPoint(30, 40));
        staff->setCanvasSize(0, 0);
        staff->setMovePoint(QPoint(50, 60));
        staff->setCanvasSize(kExtent, kExtent);
        QCOMPARE(staff->movePoint().value(), QPoint(30, 40));

        // Upright in the device's coordinates, on a canvas that has no pixel for each of them.
        const auto small = makeFigure(Type::VerticalRuler, 833);
        small->addPoint(335, 100);
        small->setMovePoint(50, 700);
        QCOMPARE(small->movePoint()->x(), small->canvasPoint(0)->x());
        small->addPoint(50, 700);
        QCOMPARE(pointsOf(*small)[1], QPoint(pointsOf(*small)[0].x(), 700 * 8192 / 833));
    }

    void keepsDirectionPointsUntilSomethingChanges()
    {
        const auto figure =
            makeFigure(Type::Parallelogram, kExtent, {{0, 0}, {400, 0}, {400, 200}});
        QCOMPARE(figure->directionPoints(), (Points{{0, 100}, {400, 100}}));
        const Points read{{390, 5}, {17, 9}};
        figure->setDirectionPoints(read);
        QCOMPARE(figure->direction(), Direction::RightToLeft);
        figure->setDirection(Direction::RightToLeft);
        QCOMPARE(figure->directionPoints(), read);
        const auto copy = createDraw(Type::Parallelogram);
        QVERIFY(copy->setFigure(figure->figure()));
        QCOMPARE(copy->directionPoints(), read);
        figure->setDirection(Direction::LeftToRight);
        QCOMPARE(figure->directionPoints(), (Points{{0, 100}, {400, 100}}));
        copy->clear();
        QVERIFY(copy->directionPoints().isEmpty());
    }

    void paintsExactly_data() { Fixtures::addRows("figures/painted.json"); }

    void paintsExactly()
    {
        QFETCH(const Value, fixture);
        QVector<QRect> areas;
        for (int i = 0; i < fixture["areas"].size(); ++i) {
            const Value& area = fixture["areas"][i];
            areas.append({area[0].asInt(), area[1].asInt(), area[2].asInt(), area[3].asInt()});
        }
        const Points points = Fixtures::pointsOf(fixture["points"]);
        const auto figure = makeFigure(kind(), kPixels, points);
        figure->setMovePoint(90, 60);
        if (points.size() >= 2)
            figure->setFinished(true);
        QCOMPARE(painted(*figure), filled(areas, kNormal));
        figure->setSelected(true);
        QCOMPARE(painted(*figure), filled(areas, kSelected));
        figure->draw(nullptr);
    }

    void crossTestPaintsTwoSegments()
    {
        CrossTestDraw test;
        test.setCanvasSize(kPixels, kPixels);
        for (const QPoint& click : Points{{30, 60}, {90, 60}, {30, 90}})
            test.addPoint(click.x(), click.y());
        QCOMPARE(painted(test), filled({{30, 59, 60, 2}}, kNormal));
        test.setMovePoint(90, 90);
        QCOMPARE(painted(test), filled({{30, 59, 60, 2}, {30, 89, 60, 2}}, kNormal));
        QCOMPARE(test.type(), Type::None);
    }

    void arrowsShowTheDirection()
    {
        const auto line = makeFigure(Type::DirectionLine, kPixels, {{20, 64}, {108, 64}});
        const auto box =
            makeFigure(Type::Parallelogram, kPixels, {{14, 20}, {114, 20}, {114, 100}});
        for (const Direction direction :
             {Direction::None, Direction::RightToLeft, Direction::LeftToRight, Direction::Both}) {
            const bool left = direction == Direction::RightToLeft || direction == Direction::Both;
            const bool right = direction == Direction::LeftToRight || direction == Direction::Both;
            line->setDirection(direction);
            const QImage across = painted(*line);
            QCOMPARE(inked(across, {63, 44, 2, 40}), left || right ? 80 : 4);
            for (const int wingX : {56, 65}) {
                QCOMPARE(inked(across, {wingX, 45, 7, 7}) > 8, left);
                QCOMPARE(inked(across, {wingX, 76, 7, 7}) > 8, right);
            }
            box->setDirection(direction);
            const QImage along = painted(*box);
            QCOMPARE(inked(along, {39, 50, 8, 9}) > 8, left);
            QCOMPARE(inked(along, {81, 50, 8, 9}) > 8, right);
        }
        const auto arrow = makeFigure(Type::Direction, kPixels, {{20, 64}, {108, 64}});
        const QImage head = painted(*arrow);
        QVERIFY_BOTH(inked(head, {101, 56, 7, 7}) > 8, inked(head, {101, 65, 7, 7}) > 8);
        QVERIFY(!inked(head, {20, 50, 70, 12}));
    }

    void rubberBandTurnsRedWhereItCrosses()
    {
        const auto region = makeFigure(Type::Polygon, kPixels, {{10, 20}, {110, 24}, {100, 100}});
        region->setMovePoint(40, 110);
        QCOMPARE(painted(*region).pixel(70, 104), kNormal);
        region->setMovePoint(60, 4);
        const QImage crossing = painted(*region);
        QCOMPARE(crossing.pixel(80, 52), kRed);
        QCOMPARE(crossing.pixel(35, 12), kNormal);
    }

    void finishedFiguresAreLabelled()
    {
        const QRect below(10, 24, 60, 14);
        for (const Type type : {Type::Polygon, Type::DirectionLine, Type::Ruler,
                                Type::HorizontalRuler, Type::Parallelogram}) {
            const auto figure =
                makeFigure(type, kPixels, {{5, 20}, {120, 20}, {120, 110}, {5, 110}});
            QCOMPARE(inked(painted(*figure), below), 0);
            figure->setLabel("Rule1");
            figure->tryFinish();
            const QImage image = painted(*figure);
            QVERIFY_BOTH(inked(image, below) > 30, !inked(image, {10, 45, 60, 12}));
            figure->setFinished(false);
            QCOMPARE(inked(painted(*figure), below), 0);
        }
    }

    void edgesAndLanesAreNamed_data() { Fixtures::addRows("figures/named.json"); }

    void edgesAndLanesAreNamed()
    {
        QFETCH(const Value, fixture);
        const auto figure = makeFigure(kind(), kPixels, Fixtures::pointsOf(fixture["clicks"]));
        figure->setEdgeLabelMode(EdgeLabelMode::LengthAndWidth);
        figure->tryFinish();
        TextNotes notes;
        QCoreApplication::installTranslator(&notes);
        painted(*figure);
        QCoreApplication::removeTranslator(&notes);
        QCOMPARE(notes.notes.join(' '), fixture["texts"].asString());
    }
};

QTEST_MAIN(TstFigures)
#include "tst_figures.moc"
