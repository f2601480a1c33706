#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "draw/figurelayer.h"
#include "draw/labelfont.h"
#include "host/gdiplus.h"
#include "tests/support/contrast.h"
#include "tests/support/rulestest.h"
#include "tests/support/script.h"

#include <functional>
#include <memory>

using kql::Json::Value;

namespace
{

constexpr int kCanvas = 256; // 32 normalized units a pixel, so nothing is rounded

const QHash<QString, BaseDrawType> kKinds{{"Polygon", BaseDrawType::Polygon},
                                          {"Rectangle", BaseDrawType::Rectangle},
                                          {"VehicleLane", BaseDrawType::VehicleLane}};
const QStringList kForbidden{"nothing", "other items", "outside", "itself"};

/// A canvas, its items by their names, and how often it told of a change.
struct Bench {
    Bench() { scene.setCanvasSize(kCanvas, kCanvas); }

    void add(const QString& name, BaseDrawType type, const Value& more = {})
    {
        auto item = std::make_unique<DrawItem>(type);
        const int entry = more.isMember("entry") ? more["entry"].asInt() : 1;
        item->setDataId(entry);
        item->setForbidenAreaType(
            DrawItemForbidenAreaType(qMax(0, kForbidden.indexOf(more["forbidden"].asString()))));
        item->setPointLimits(-1, -1);
        item->setLabel(QString("Rule%1").arg(entry));
        const QString parent = more["parent"].asString();
        items[name] = scene.addItem(std::move(item), parent.isEmpty() ? 0 : id(parent));
    }
    void press(const QVector<QPoint>& points)
    {
        for (const QPoint& point : points)
            scene.addDrawPoint(DrawScene::DrawMouseLeftPress, point);
    }
    int id(const QString& name) const { return items[name]->itemId(); }
    void select(const QString& name)
    {
        name.isEmpty() ? scene.setSelected(0, 0)
                       : scene.setSelected(id(name), items[name]->dataId());
    }

    DrawScene scene;
    QHash<QString, DrawItem*> items;
    QSignalSpy changes{&scene, &DrawScene::sgnSelectedStatusChange};
};

using Step = const Value&;

DrawItem& itemOf(Bench& bench, Step step)
{
    return *bench.items[step[1].asString()];
}

QPoint point(Step step)
{
    return {step[1][0].asInt(), step[1][1].asInt()};
}

QString points(Bench& bench, Step step)
{
    QStringList texts;
    for (const QPoint& at : itemOf(bench, step).getPoints())
        texts.append(QString("%1,%2").arg(at.x()).arg(at.y()));
    return texts.join(' ');
}

/// What an operator, or a panel, does on a canvas; and what it tells.
const Script<Bench> kScript{
    {{"add", [](Bench& b, Step s) { b.add(s[1].asString(), kKinds[s[2].asString()], s[3]); }},
     {"select", [](Bench& b, Step s) { b.select(s[1].asString()); }},
     {"byEntry", [](Bench& b, Step) { b.scene.setDrawByDataId(true); }},
     {"selectOf",
      [](Bench& b, Step s) { b.scene.setSelected(b.id(s[2].asString()), s[1].asInt()); }},
     {"press", [](Bench& b, Step s) { b.press(Fixtures::pointsOf(s[1])); }},
     {"pressRight",
      [](Bench& b, Step) {
          b.scene.addDrawPoint(DrawScene::DrawMouseRightPress, {0, 0});
      }},
     {"move", [](Bench& b, Step s) { b.scene.addDrawPoint(DrawScene::DrawMouseMove, point(s)); }},
     {"resize", [](Bench& b, Step s) { b.scene.setCanvasSize(s[1].asInt(), s[1].asInt()); }},
     {"redraw", [](Bench& b, Step s) { b.scene.redrawItem(itemOf(b, s).itemId()); }},
     {"remove", [](Bench& b, Step s) { b.scene.removeItem(itemOf(b, s).itemId()); }}},
    {{"message", [](Bench& b, Step) { return b.scene.message(); }},
     {"changes", [](Bench& b, Step) { return b.changes.count(); }},
     {"selected", [](Bench& b, Step) { return b.items.key(b.scene.selectedItem(-1)); }},
     {"selectedOf",
      [](Bench& b, Step s) { return b.items.key(b.scene.selectedItem(s[1].asInt())); }},
     {"isForbidden", [](Bench& b, Step s) { return b.scene.isPointForbidden(point(s)); }},
     {"isFinished", [](Bench& b, Step s) { return itemOf(b, s).isFinished(); }},
     {"points", points},
     {"movePoint",
      [](Bench& b, Step s) {
          const QPoint end = itemOf(b, s).figure()->movePoint().value_or(QPoint());
          return QSize(end.x(), end.y());
      }},
     {"parent", [](Bench& b, Step s) { return b.items.key(itemOf(b, s).parent()); }},
     {"entry", [](Bench& b, Step s) { return itemOf(b, s).dataId(); }}}};

QImage painted(const std::function<void(Gdiplus::Graphics&)>& paint, int pixelRatio = 1,
               const QColor& picture = Qt::white)
{
    QImage image(kCanvas * pixelRatio, kCanvas * pixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(picture);
    QPainter painter(&image);
    Gdiplus::Graphics graphics(&painter);
    paint(graphics);
    return image;
}

QImage painted(DrawScene& scene, const QColor& picture = Qt::white)
{
    return painted([&](Gdiplus::Graphics& graphics) { scene.draw(&graphics); }, 1, picture);
}

/// On an upright line of a figure, on its casing, and on what lies around that.
QList<QRgb> colors(const QImage& image, const QPoint& at)
{
    QList<QRgb> found;
    for (const int left : {0, 2, 4, 7})
        found.append(image.pixel(at - QPoint(left, 0)));
    return found;
}

/// Of all pixels in @p area that have the very @p color the worst ratio to the best of those
/// around it; 0 where there are hardly any.
double worstRatio(const QImage& image, const QRect& area, QRgb color)
{
    int count = 0;
    double worst = 21;
    for (int i = 0; i < area.width() * area.height(); ++i) {
        const QPoint at = area.topLeft() + QPoint(i % area.width(), i / area.width());
        if (image.pixel(at) != color)
            continue;
        double best = 1;
        for (int around = 0; around < 25; ++around)
            best = qMax(best, Contrast::ratio(color, image.pixel(at.x() + around % 5 - 2,
                                                                 at.y() + around / 5 - 2)));
        worst = qMin(worst, best);
        ++count;
    }
    return count < 5 ? 0 : worst;
}

constexpr int kNone = 1, kRough = 2, kSmooth = 3;

/// How many colours are seen in the upper third, above the hint, the picture's among them.
int colorsAboveTheHint(DrawScene& scene)
{
    const QImage seen = painted(scene);
    QSet<QRgb> colors;
    for (int i = 0; i < kCanvas * (kCanvas / 3); ++i)
        colors.insert(seen.pixel(i % kCanvas, i / kCanvas));
    return qMin(colors.size(), kSmooth);
}

} // namespace

class TstDrawScene : public RulesTest
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { LabelFont::release(); }

    void works_data() { Fixtures::addRows("canvas.json"); }

    void works()
    {
        QFETCH(const Value, fixture);
        Bench bench;
        kScript.play(bench, fixture);
    }

    void paintsShadeFiguresAndHint()
    {
        Bench bench;
        bench.add("lane", BaseDrawType::VehicleLane);
        bench.items["lane"]->setForbidenAreaType(DrawItemForbidenAreaType::ForbidenSelf);
        bench.select("lane");
        bench.press({{64, 250}, {64, 10}, {200, 250}});
        const QImage image = painted(bench.scene);
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
        const QRgb ground = image.pixel(kCanvas - 2 - margin, y);
        QVERIFY(Contrast::ratio(qRgb(255, 255, 255), ground) >= Contrast::kTexts);
        bench.select({});
        bench.scene.addDrawPoint(DrawScene::DrawMouseMove, {0, 0});
        QCOMPARE(painted(bench.scene).pixel(5, 5), qRgb(255, 255, 255));
        bench.scene.draw(nullptr);
    }

    /// Under and behind the strokes, whatever is painted later.
    void tellsFiguresApart()
    {
        Bench bench;
        const QVector<QPoint> corners[] = {
            {{20, 20}, {100, 100}}, {{40, 150}, {100, 200}}, {{60, 60}, {160, 240}}};
        const QStringList names{"other", "picked", "last"};
        for (int i = 0; i < 3; ++i) {
            Value entry(kql::Json::ValueType::Object);
            entry["entry"] = i == 0 ? 2 : 1;
            bench.add(names[i], BaseDrawType::Rectangle, entry);
            bench.select(names[i]);
            bench.press(corners[i]);
        }
        bench.scene.setCurrentDataId(1);
        bench.select("picked");
        const QRgb blue = qRgb(0, 125, 255);
        const QRgb gold = qRgb(255, 215, 0);
        const QRgb white = qRgb(255, 255, 255);
        const QImage image = painted(bench.scene);
        const QRgb dark = qRgb(102, 102, 102);
        const QRgb onGold = qRgb(255, 252, 238);
        QCOMPARE(colors(image, {160, 120}), (QList<QRgb>{blue, onGold, gold, white}));
        QCOMPARE(colors(image, {100, 180}), (QList<QRgb>{gold, dark, white, white}));
        QCOMPARE(colors(image, {20, 80}), (QList<QRgb>{blue, white, white, white}));
        // Where the last figure's line meets one that is painted before it.
        QCOMPARE(image.pixel(98, 60), image.pixel(110, 60));
        QCOMPARE(image.pixel(100, 58), blue);
        QCOMPARE(bench.items["last"]->figure()->color().GetValue(), Gdiplus::ARGB(0xFF007DFF));

        QVERIFY(bench.scene.emphasise(2, 0));
        QVERIFY(!bench.scene.emphasise(2, 0));
        const QRgb edge = qRgb(16, 20, 24);
        QCOMPARE(colors(painted(bench.scene), {20, 80}), (QList<QRgb>{blue, white, white, edge}));
        QCOMPARE(bench.scene.selectedItem(1), bench.items["picked"]);
        QVERIFY(bench.scene.emphasise(0, bench.id("picked")));
        QCOMPARE(colors(painted(bench.scene), {20, 80}), (QList<QRgb>{blue, white, white, white}));
        QCOMPARE(colors(painted(bench.scene), {100, 180}), (QList<QRgb>{gold, dark, white, edge}));
        QVERIFY(bench.scene.emphasise(0, 0));
        QCOMPARE(painted(bench.scene), image);
        bench.scene.setFaulty(bench.id("last"));
        QCOMPARE(painted(bench.scene).pixel(60, 44), qRgb(58, 32, 0)); // the sign
        bench.scene.setFaulty(0);
        bench.scene.setCurrentDataId(2);
        QCOMPARE(colors(painted(bench.scene), {20, 80}), (QList<QRgb>{blue, onGold, gold, white}));
    }

    void standsOutOnAnyPicture_data()
    {
        QTest::addColumn<QColor>("picture");
        QTest::newRow("asphalt") << QColor(96, 98, 102);
        QTest::newRow("grass") << QColor(104, 140, 62);
        QTest::newRow("sky") << QColor(140, 185, 225);
        QTest::newRow("snow") << QColor(252, 252, 255);
        QTest::newRow("night") << QColor(14, 16, 24);
    }

    /// Lines and labels of either colour, and what would cross.
    void standsOutOnAnyPicture()
    {
        QFETCH(const QColor, picture);
        Bench bench;
        bench.add("other", BaseDrawType::Parallelogram);
        bench.add("picked", BaseDrawType::Parallelogram);
        bench.add("drawn", BaseDrawType::Polygon);
        const QRect places[] = {{30, 20, 60, 40}, {120, 20, 60, 40}};
        const QRgb blue = qRgb(0, 125, 255);
        const QRgb gold = qRgb(255, 215, 0);
        for (const int i : {0, 1}) {
            const QRect& place = places[i];
            bench.select(i == 0 ? "other" : "picked");
            bench.press({place.topLeft(), place.topRight(), place.bottomRight()});
        }
        const QImage image = painted(bench.scene, picture);
        for (const int i : {0, 1}) {
            const QRgb color = i == 0 ? blue : gold;
            const QRect label = places[i].adjusted(4, 5, -4, -14);
            QVERIFY(worstRatio(image, label, color) >= Contrast::kMarks);
            QVERIFY(worstRatio(image, places[i].adjusted(-2, -2, 2, 2), color) >= Contrast::kMarks);
        }
        bench.select("drawn");
        bench.press({{30, 190}, {200, 190}, {200, 230}});
        bench.scene.addDrawPoint(DrawScene::DrawMouseMove, {100, 170});
        const QImage crossing = painted(bench.scene, picture);
        const QRect left(30, 165, 170, 65);
        QVERIFY(worstRatio(crossing, left, qRgb(255, 0, 0)) >= Contrast::kMarks);
        QVERIFY(worstRatio(crossing, left, gold) >= Contrast::kMarks);
    }

    void showsCrossingsWithoutColors()
    {
        Bench bench;
        bench.add("drawn", BaseDrawType::Polygon);
        bench.select("drawn");
        const QPoint last(200, 240);
        bench.press({{20, 100}, {200, 104}, last});
        const auto gaps = [&](const QPoint& end) {
            bench.scene.addDrawPoint(DrawScene::DrawMouseMove, end);
            const QImage image = painted(bench.scene);
            int found = 0;
            for (int percent = 10; percent < 90; ++percent)
                found += qBlue(image.pixel(last + percent * (end - last) / 100)) > 150 ? 1 : 0;
            return found;
        };
        QVERIFY(gaps({60, 20}) > 5);
        QCOMPARE(gaps({60, 230}), 0);
    }

    void finishedListenersMayRemoveTheItem()
    {
        Bench bench;
        bench.add("frame", BaseDrawType::Rectangle);
        bench.select("frame");
        const int id = bench.id("frame");
        QObject::connect(&bench.scene, &DrawScene::sgnSelectedStatusChange, &bench.scene,
                         [&] { bench.scene.removeItem(id); });
        bench.press({{1, 1}, {9, 9}});
        QVERIFY(!bench.scene.findItem(id));
    }

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
        Bench bench;
        bench.add("ring", BaseDrawType::Polygon);
        Figure figure = bench.items["ring"]->value();
        figure.setPoints(ring);
        figure.setFinished(true);
        bench.items["ring"]->figure()->setFigure(figure);
        QTEST(colorsAboveTheHint(bench.scene), "lineColors");
        bench.add("another", BaseDrawType::Polygon);
        bench.items["another"]->setDataId(2);
        bench.items["another"]->setForbidenAreaType(DrawItemForbidenAreaType::ForbidenOtherItems);
        bench.scene.setDrawByDataId(true);
        bench.scene.setCurrentDataId(2);
        bench.select("another");
        QTEST(colorsAboveTheHint(bench.scene), "areaColors");
        QVERIFY(bench.scene.isPointForbidden({kCanvas / 2 + 20, kCanvas / 2}));
    }
};

QTEST_MAIN(TstDrawScene)
#include "tst_drawscene.moc"
