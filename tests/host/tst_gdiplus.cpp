#include "host/gdiplus.h"

#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"

#include <functional>
#include <vector>

using namespace Gdiplus;
using kql::Json::Value;

namespace
{

constexpr ARGB kInk = 0xFF204060;

const WCHAR* wide(const QString& text)
{
    return reinterpret_cast<const WCHAR*>(text.utf16());
}

/// A white picture of 64 by 64 pixels, painted on by @p paint.
QImage painted(const std::function<void(Graphics&)>& paint)
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    Graphics graphics(&painter);
    paint(graphics);
    return image;
}

/// The pixels other than white.
QRegion ink(const QImage& image)
{
    return QBitmap::fromImage(image.createMaskFromColor(qRgb(255, 255, 255), Qt::MaskInColor));
}

} // namespace

class TstGdiplus : public RulesTest
{
    Q_OBJECT

private slots:
    void visiblePoints_data() { Fixtures::addRows("visible.json"); }

    void visiblePoints()
    {
        QFETCH(const Value, fixture);
        GraphicsPath path(fixture["isWinding"].asBool() ? FillModeWinding : FillModeAlternate);
        for (int i = 0; i < fixture["rectangles"].size(); ++i) {
            const Value& box = fixture["rectangles"][i];
            path.AddRectangle(Rect(box[0].asInt(), box[1].asInt(), box[2].asInt(), box[3].asInt()));
        }
        for (int i = 0; i < fixture["polygons"].size(); ++i) {
            std::vector<Point> corners;
            for (const QPoint& corner : Fixtures::pointsOf(fixture["polygons"][i]))
                corners.emplace_back(corner.x(), corner.y());
            path.AddPolygon(corners.data(), int(corners.size()));
        }
        for (const char* side : {"inside", "outside"}) {
            for (const QPoint& p : Fixtures::pointsOf(fixture[side]))
                QVERIFY2(path.IsVisible(p.x(), p.y()) == (*side == 'i'),
                         qPrintable(QString("%1 %2,%3").arg(side).arg(p.x()).arg(p.y())));
        }
    }

    void pixels()
    {
        const auto check = [](const char* name, const QRect& filled, const QRect& hollow,
                              const std::function<void(Graphics&)>& paint) {
            for (const SmoothingMode mode : {SmoothingModeNone, SmoothingModeAntiAlias}) {
                const QImage image = painted([&](Graphics& g) {
                    g.SetSmoothingMode(mode);
                    paint(g);
                });
                QVERIFY2((ink(image) ^ (QRegion(filled) - hollow)).isEmpty(), name);
                QCOMPARE(image.pixel(filled.topLeft()), QRgb(kInk));
            }
        };
        check("upright line, backwards", {9, 10, 2, 10}, {},
              [this](Graphics& g) { g.DrawLine(&m_pen, 10.0F, 20.0F, 10.0F, 10.0F); });
        check("crossing mark", {9, 9, 4, 4}, {},
              [this](Graphics& g) { g.DrawRectangle(&m_pen, 10.0F, 10.0F, 2.0F, 2.0F); });
        check("filled rectangle", {10, 12, 20, 8}, {},
              [this](Graphics& g) { g.FillRectangle(&m_brush, 10, 12, 20, 8); });
        check("path with a hole", {0, 0, 64, 64}, {10, 10, 20, 20}, [this](Graphics& g) {
            GraphicsPath path;
            path.AddRectangle(Rect(0, 0, 64, 64));
            path.AddRectangle(Rect(10, 10, 20, 20));
            g.FillPath(&m_brush, &path);
        });
        check("each turn works in the coordinates of those before", {29, 25, 2, 20}, {},
              [this](Graphics& g) {
                  g.TranslateTransform(30, 20);
                  g.RotateTransform(90);
                  g.TranslateTransform(5, 0);
                  g.DrawLine(&m_pen, 0, 0, 20, 0);
              });
    }

    void lineCaps()
    {
        Pen pen(Color(kInk), 6.0F);
        const auto right = [&pen] {
            return ink(painted([&pen](Graphics& g) { g.DrawLine(&pen, 10, 20, 30, 20); }))
                .boundingRect()
                .right();
        };
        QCOMPARE(pen.SetLineCap(LineCapRound, LineCapFlat, DashCapFlat), InvalidParameter);
        QCOMPARE(right(), 29);
        QCOMPARE(pen.SetLineCap(LineCapRound, LineCapRound, DashCapRound), Ok);
        QCOMPARE(right(), 32);
        QCOMPARE(pen.SetLineCap(LineCapFlat, LineCapFlat, DashCapFlat), Ok);
        QCOMPARE(right(), 29);
    }

    void smoothing()
    {
        const auto shades = [this](SmoothingMode mode) {
            const QImage image = painted([this, mode](Graphics& g) {
                g.SetSmoothingMode(mode);
                g.DrawLine(&m_pen, 3, 3, 60, 40);
            });
            QSet<QRgb> found;
            for (int i = 0; i < 64 * 64; ++i)
                found.insert(image.pixel(i % 64, i / 64));
            return found.size();
        };
        QCOMPARE(shades(SmoothingModeNone), 2);
        QVERIFY(shades(SmoothingModeHighQuality) > 2);
    }

    void painterIsLeftAsFound()
    {
        QImage image(64, 64, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.translate(3, 4);
        painter.setPen(QPen(Qt::red, 3));
        painter.setRenderHint(QPainter::Antialiasing);
        for (int i = 0; i < 2; ++i) {
            Graphics graphics(&painter);
            graphics.Save();
            graphics.RotateTransform(30);
            graphics.Clear(Color(255, 255, 255));
            graphics.DrawLine(&m_pen, 0, 0, 9, 9);
        }
        QCOMPARE(painter.worldTransform(), QTransform::fromTranslate(3, 4));
        QCOMPARE(painter.pen(), QPen(Qt::red, 3));
        QVERIFY(painter.testRenderHint(QPainter::Antialiasing));
    }

    void textMatchesItsMeasure()
    {
        const QString text = QString("HIH");
        const Font font(nullptr, 12);
        RectF box;
        const QImage image = painted([&](Graphics& g) {
            QCOMPARE(g.MeasureString(wide(text), -1, &font, PointF(8, 20), &box), Ok);
            QCOMPARE(g.DrawString(wide(text), -1, &font, PointF(8, 20), &m_brush), Ok);
        });
        QFont plain;
        plain.setPixelSize(16);
        QCOMPARE(box.Width, REAL(QFontMetricsF(plain).horizontalAdvance(text) + 16 / 3.0));
        QCOMPARE(box.X, 8.0F);
        QCOMPARE(box.Y, 20.0F);
        // The ink begins and ends a sixth of an em, and the letters' own bearing, inside the box.
        const QRect drawn = ink(image).boundingRect();
        const QRectF tight = QFontMetricsF(plain).tightBoundingRect(text);
        const qreal left = 8 + 16 / 6.0 + tight.left();
        QVERIFY(qAbs(drawn.left() - left) <= 1.5);
        QVERIFY(qAbs(drawn.right() + 1 - (left + tight.width())) <= 1.5);
        QVERIFY_BOTH(drawn.top() > 20, drawn.bottom() < 20 + box.Height);
    }

    void layers()
    {
        const SolidBrush shade{Color(0x80FF0000)};
        Bitmap layer(20, 10);
        {
            Graphics on(&layer);
            on.FillRectangle(&m_brush, 0, 0, 5, 5);
            on.FillRectangle(&shade, 10, 0, 5, 5);
            QCOMPARE(on.DrawImage(&layer, 0, 0), ObjectBusy);
            Graphics second(&layer);
            QCOMPARE(second.GetLastStatus(), ObjectBusy);
        }
        const QImage shown = painted([&](Graphics& g) {
            g.TranslateTransform(3, 0);
            QCOMPARE(g.DrawImage(&layer, 1, 7), Ok);
        });
        QVERIFY((ink(shown) ^ (QRegion(4, 7, 5, 5) + QRect(14, 7, 5, 5))).isEmpty());
        QCOMPARE(shown.pixel(4, 7), QRgb(kInk));
        QVERIFY(qAbs(qGreen(shown.pixel(14, 7)) - 127) <= 1);

        QImage fine(40, 20, QImage::Format_ARGB32_Premultiplied);
        fine.setDevicePixelRatio(2);
        fine.fill(Qt::white);
        QPainter painter(&fine);
        Graphics target(&painter);
        Bitmap fineLayer(20, 10, &target);
        Graphics(&fineLayer).FillRectangle(&m_brush, 0.5F, 0.5F, 2.0F, 2.0F);
        target.DrawImage(&fineLayer, 1, 1);
        QVERIFY((ink(fine) ^ QRegion(3, 3, 4, 4)).isEmpty());
        QVERIFY_BOTH(Bitmap(0, 5).GetLastStatus() != Ok,
                     Bitmap(1 << 20, 1 << 20).GetLastStatus() != Ok);
    }

private:
    const Pen m_pen{Color(kInk), 2.0F};
    const SolidBrush m_brush{Color(kInk)};
};

QTEST_MAIN(TstGdiplus)
#include "tst_gdiplus.moc"
