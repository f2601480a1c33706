#include "host/gdiplus.h"

#include "tests/support/rulestest.h"

#include <QImage>
#include <QPainter>
#include <QSet>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>

using namespace Gdiplus;

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

/// Whether exactly the pixels of @p filled outside @p hollow are other than white.
bool coversExactly(const QImage& image, const QRegion& filled, const QRect& hollow = {})
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isInside = filled.contains(QPoint(x, y)) && !hollow.contains(x, y);
            if ((image.pixel(x, y) != qRgb(255, 255, 255)) != isInside) {
                qInfo("differs at %d, %d", x, y);
                return false;
            }
        }
    }
    return true;
}

QRect inkBounds(const QImage& image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

void addSquare(GraphicsPath& path, int left, int top, int size, bool clockwise)
{
    const int right = left + size;
    const int bottom = top + size;
    const Point forward[] = {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
    const Point backward[] = {{left, top}, {left, bottom}, {right, bottom}, {right, top}};
    path.AddPolygon(clockwise ? forward : backward, 4);
}

} // namespace

class TstGdiplus : public RulesTest
{
    Q_OBJECT

private slots:
    void visiblePoints()
    {
        using Points = QVector<QPoint>;
        const auto hole = [](GraphicsPath& p) {
            p.AddRectangle(Rect(0, 0, 50, 50));
            const PointF inner[] = {{10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}};
            p.AddPolygon(inner, 5);
        };
        const auto overlap = [](bool clockwise) {
            return [clockwise](GraphicsPath& p) {
                addSquare(p, 0, 0, 20, true);
                addSquare(p, 10, 10, 20, clockwise);
            };
        };
        const auto polygon = [](const std::array<Point, 4>& points) {
            return [points](GraphicsPath& p) { p.AddPolygon(points.data(), 4); };
        };
        constexpr int kFar = std::numeric_limits<int>::max() / 2;
        const auto check = [](const char* name, FillMode mode,
                              const std::function<void(GraphicsPath&)>& build, const Points& in,
                              const Points& out) {
            GraphicsPath path(mode);
            build(path);
            for (const QPoint& p : in)
                QVERIFY2(path.IsVisible(p.x(), p.y()), name);
            for (const QPoint& p : out)
                QVERIFY2(!path.IsVisible(p.x(), p.y()), name);
        };
        check("empty", FillModeAlternate, [](GraphicsPath&) {}, {}, {{0, 0}, {1, 1}});
        check("rectangle", FillModeAlternate,
              [](GraphicsPath& p) { p.AddRectangle(Rect(10, 10, 20, 20)); },
              {{10, 10}, {29, 10}, {10, 29}, {29, 29}},
              {{9, 10}, {10, 9}, {30, 10}, {10, 30}, {30, 30}});
        check("slanted edges", FillModeAlternate, polygon({{{20, 0}, {40, 20}, {20, 40}, {0, 20}}}),
              {{0, 20}, {10, 10}, {10, 30}, {5, 15}, {29, 10}, {39, 20}, {20, 39}},
              {{30, 10}, {30, 30}, {40, 20}, {20, 40}, {9, 10}, {9, 30}, {20, 0}});
        check("hole is the complement", FillModeAlternate, hole,
              {{0, 0}, {9, 15}, {20, 15}, {15, 20}, {49, 49}},
              {{10, 10}, {19, 19}, {50, 5}, {-1, 5}});
        check("winding has no hole of like direction", FillModeWinding, hole, {{10, 10}, {15, 15}},
              {});
        check("winding joins overlaps", FillModeWinding, overlap(true),
              {{15, 15}, {5, 5}, {25, 25}}, {{25, 5}, {5, 25}});
        check("winding cancels opposite directions", FillModeWinding, overlap(false),
              {{5, 5}, {25, 25}, {20, 20}}, {{10, 10}, {15, 15}, {19, 19}});
        check("far away", FillModeAlternate,
              polygon({{{-kFar, -kFar}, {kFar, -kFar}, {kFar, kFar}, {-kFar, kFar}}}),
              {{-kFar, -kFar}, {0, 0}, {kFar - 1, 0}}, {{kFar, 0}, {-kFar - 1, 0}, {0, kFar}});
    }

    void pathsRefuseBrokenFigures()
    {
        constexpr REAL kNan = std::numeric_limits<REAL>::quiet_NaN();
        const Point line[] = {{0, 0}, {9, 9}, {0, 9}};
        const PointF broken[] = {{0, 0}, {kNan, 1}, {5, 5}};
        GraphicsPath path(FillModeWinding);
        QCOMPARE(path.AddPolygon(line, 2), InvalidParameter);
        QCOMPARE(path.AddPolygon(static_cast<const Point*>(nullptr), 3), InvalidParameter);
        QCOMPARE(path.AddPolygon(broken, 3), InvalidParameter);
        QCOMPARE(path.AddRectangle(RectF(0, 0, kNan, 1)), InvalidParameter);
        QCOMPARE(path.GetPointCount(), 0);
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
                QVERIFY2(coversExactly(image, filled, hollow), name);
                if (!filled.isEmpty())
                    QCOMPARE(image.pixel(filled.topLeft()), QRgb(kInk));
            }
        };
        check("level line", {10, 9, 10, 2}, {},
              [this](Graphics& g) { g.DrawLine(&m_pen, 10, 10, 20, 10); });
        check("upright line, backwards", {9, 10, 2, 10}, {},
              [this](Graphics& g) { g.DrawLine(&m_pen, 10.0F, 20.0F, 10.0F, 10.0F); });
        check("rectangle", {9, 9, 22, 22}, {11, 11, 18, 18},
              [this](Graphics& g) { g.DrawRectangle(&m_pen, 10, 10, 20, 20); });
        check("crossing mark", {9, 9, 4, 4}, {},
              [this](Graphics& g) { g.DrawRectangle(&m_pen, 10.0F, 10.0F, 2.0F, 2.0F); });
        check("filled rectangle", {10, 12, 20, 8}, {},
              [this](Graphics& g) { g.FillRectangle(&m_brush, 10, 12, 20, 8); });
        check("path with a hole", {0, 0, 64, 64}, {10, 10, 20, 20}, [this](Graphics& g) {
            GraphicsPath path;
            path.AddRectangle(Rect(0, 0, 64, 64));
            addSquare(path, 10, 10, 20, true);
            g.FillPath(&m_brush, &path);
        });
        check("each turn works in the coordinates of those before", {29, 25, 2, 20}, {},
              [this](Graphics& g) {
                  g.TranslateTransform(30, 20);
                  g.RotateTransform(90);
                  g.TranslateTransform(5, 0);
                  g.DrawLine(&m_pen, 0, 0, 20, 0);
              });
        check("no area", {}, {}, [this](Graphics& g) {
            g.DrawRectangle(&m_pen, 30, 30, -5, 5);
            g.FillRectangle(&m_brush, 30, 30, 5, -5);
            g.FillRectangle(&m_brush, 30, 30, 0, 5);
            QCOMPARE(g.GetLastStatus(), Ok);
        });
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
        const QString text = QStringLiteral("HIH");
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
        const QRect ink = inkBounds(image);
        const QRectF tight = QFontMetricsF(plain).tightBoundingRect(text);
        const qreal left = 8 + 16 / 6.0 + tight.left();
        QVERIFY(qAbs(ink.left() - left) <= 1.5);
        QVERIFY(qAbs(ink.right() + 1 - (left + tight.width())) <= 1.5);
        QVERIFY(ink.top() > 20 && ink.bottom() < 20 + box.Height);
    }

    void textFollowsFormat()
    {
        const Font font(nullptr, 12);
        const auto ink = [&](StringAlignment alignment) {
            StringFormat format;
            format.SetAlignment(alignment);
            format.SetLineAlignment(alignment);
            return inkBounds(painted([&](Graphics& g) {
                g.DrawString(wide(QStringLiteral("H")), -1, &font, RectF(0, 0, 64, 64), &format,
                             &m_brush);
            }));
        };
        const QRect start = ink(StringAlignmentNear);
        const QRect middle = ink(StringAlignmentCenter);
        const QRect end = ink(StringAlignmentFar);
        QVERIFY(start.isValid());
        QVERIFY(qAbs(middle.left() + middle.right() - 63) <= 2);
        QVERIFY(qAbs(start.left() - (63 - end.right())) <= 2);
        QVERIFY(start.bottom() < middle.top() && middle.bottom() < end.top() + start.height());
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
        QVERIFY(coversExactly(shown, QRegion(4, 7, 5, 5) + QRect(14, 7, 5, 5)));
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
        QVERIFY(coversExactly(fine, QRect(3, 3, 4, 4)));

        for (const Bitmap& none : {Bitmap(0, 5), Bitmap(1 << 20, 1 << 20), Bitmap(5, 5, 77)})
            QVERIFY(none.GetLastStatus() != Ok);
    }

    void unusableArguments()
    {
        constexpr REAL kNan = std::numeric_limits<REAL>::quiet_NaN();
        const Font font(nullptr, 12);
        const Font noFont(nullptr, -3);
        const GraphicsPath path;
        Bitmap noBitmap(-1, -1);
        const QString text = QStringLiteral("x");
        QCOMPARE(Pen(Color(), kNan).GetLastStatus(), InvalidParameter);
        const auto refusesAll = [&](Graphics& g) {
            const auto* noPen = static_cast<const Pen*>(nullptr);
            const auto* noBrush = static_cast<const Brush*>(nullptr);
            const WCHAR* x = wide(text);
            const Status results[] = {g.SetSmoothingMode(SmoothingModeInvalid),
                                      g.TranslateTransform(kNan, 0),
                                      g.RotateTransform(kNan),
                                      g.Restore(0),
                                      g.DrawLine(noPen, 0, 0, 1, 1),
                                      g.DrawRectangle(noPen, 0, 0, 1, 1),
                                      g.FillRectangle(noBrush, 0, 0, 1, 1),
                                      g.FillRectangle(&m_brush, 0.0F, 0.0F, kNan, 1.0F),
                                      g.FillPath(noBrush, &path),
                                      g.FillPath(&m_brush, nullptr),
                                      g.DrawImage(nullptr, 0, 0),
                                      g.DrawImage(&noBitmap, 0, 0),
                                      g.DrawString(nullptr, -1, &font, PointF(), &m_brush),
                                      g.DrawString(x, -2, &font, PointF(), &m_brush),
                                      g.DrawString(x, -1, &noFont, PointF(), &m_brush),
                                      g.DrawString(x, -1, &font, PointF(), nullptr),
                                      g.MeasureString(x, -1, &font, PointF(), nullptr)};
            return std::all_of(std::begin(results), std::end(results),
                               [](Status s) { return s == InvalidParameter; });
        };
        const QImage image = painted([&](Graphics& g) {
            QVERIFY(refusesAll(g));
            QCOMPARE(g.GetLastStatus(), InvalidParameter);
            QCOMPARE(g.GetLastStatus(), Ok);
        });
        QVERIFY(inkBounds(image).isEmpty());

        QPainter inactive;
        Graphics nowhere[] = {Graphics(HDC(nullptr)), Graphics(&inactive),
                              Graphics(static_cast<Image*>(nullptr)), Graphics(&noBitmap)};
        for (Graphics& g : nowhere) {
            QCOMPARE(g.GetLastStatus(), InvalidParameter);
            QVERIFY(refusesAll(g));
        }
    }

private:
    const Pen m_pen{Color(kInk), 2.0F};
    const SolidBrush m_brush{Color(kInk)};
};

QTEST_MAIN(TstGdiplus)
#include "tst_gdiplus.moc"
