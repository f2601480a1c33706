#pragma once

#include "host/api/kqhostexport.h"
#include "host/gdiplus/geometry.h"

#include <QFont>
#include <QFontMetricsF>
#include <QTransform>

#include <memory>
#include <optional>
#include <vector>

class QImage;
class QPainter;
class QString;

namespace Gdiplus
{

class Brush;
class Color;
class Font;
class GraphicsPath;
class Image;
class Pen;
class StringFormat;

/**
 * Paints on a device context or on an image. Coordinates are logical pixels, relative to the origin
 * that the painter had when the Graphics was made. While a Graphics lives, nothing else may use
 * its painter; it leaves the painter's state as it found it.
 *
 * A null or unusable argument paints nothing and gives InvalidParameter, and so does every call on
 * a Graphics without an active painter. Rectangles without an area are Ok and paint nothing.
 */
class KQHOST_EXPORT Graphics
{
public:
    explicit Graphics(HDC hdc);
    /// One Graphics at a time: a second one on the same image is not usable.
    explicit Graphics(Image* image);
    ~Graphics();
    Graphics(const Graphics&) = delete;
    Graphics& operator=(const Graphics&) = delete;

    /// What went wrong since the last call of this, Ok if nothing did.
    Status GetLastStatus() const;

    /// Off at first.
    Status SetSmoothingMode(SmoothingMode mode);
    /// As the screen likes it at first; antialiased text is smooth without coloured edges.
    Status SetTextRenderingHint(TextRenderingHint hint);

    /// Dots an inch of what is painted on: 96 for each of its pixels to a logical one.
    REAL GetDpiX() const;

    Status TranslateTransform(REAL dx, REAL dy, MatrixOrder order = MatrixOrderPrepend);
    /// In degrees, clockwise on the screen.
    Status RotateTransform(REAL angle, MatrixOrder order = MatrixOrderPrepend);
    Status ResetTransform();

    /// Keeps transform, smoothing and text hint. The result is never 0.
    GraphicsState Save() const;
    /// Back to a kept state; it and those kept after it are gone then.
    Status Restore(GraphicsState state);

    /// Replaces every pixel within the painter's clip, alpha included.
    Status Clear(const Color& color);
    Status DrawLine(const Pen* pen, REAL x1, REAL y1, REAL x2, REAL y2);
    Status DrawLine(const Pen* pen, INT x1, INT y1, INT x2, INT y2);
    Status DrawRectangle(const Pen* pen, REAL x, REAL y, REAL width, REAL height);
    Status DrawRectangle(const Pen* pen, INT x, INT y, INT width, INT height);
    Status FillRectangle(const Brush* brush, REAL x, REAL y, REAL width, REAL height);
    Status FillRectangle(const Brush* brush, INT x, INT y, INT width, INT height);
    Status FillPath(const Brush* brush, const GraphicsPath* path);
    Status DrawImage(Image* image, INT x, INT y);

    // Text. A length of -1 means up to the terminating zero. A sixth of an em is left free before
    // and after each line. Lines break at line feeds only, not at the layout rectangle's edge.
    Status DrawString(const WCHAR* string, INT length, const Font* font, const PointF& origin,
                      const Brush* brush);
    Status DrawString(const WCHAR* string, INT length, const Font* font, const RectF& layoutRect,
                      const StringFormat* stringFormat, const Brush* brush);
    Status MeasureString(const WCHAR* string, INT length, const Font* font, const PointF& origin,
                         RectF* boundingBox) const;
    Status MeasureString(const WCHAR* string, INT length, const Font* font, const RectF& layoutRect,
                         RectF* boundingBox) const;

private:
    friend class Bitmap;

    struct State {
        GraphicsState id = 0;
        QTransform world;
        bool antialiased = false;
        QFont::StyleStrategy textStrategy = QFont::PreferDefault;
    };

    qreal pixelRatio() const;
    void begin();
    bool isReady() const;
    Status report(Status status) const;
    Status transform(const QTransform& change, MatrixOrder order);
    void setAntialiased(bool on);
    void applyTransform();
    void selectFont(const Font& font);
    void selectTextColor(const Brush& brush);
    QFontMetricsF metricsOf(const Font& font) const;
    bool canUse(const WCHAR* string, INT length, const Font* font) const;

    std::shared_ptr<QImage> m_pixels;
    std::unique_ptr<QPainter> m_ownPainter;
    QPainter* m_painter = nullptr; // not owned, or m_ownPainter; null: nothing can be painted
    QTransform m_base;             // the painter's own, kept beneath the world transform
    State m_state;
    bool m_transformChanged = false; // m_state.world is not yet the painter's
    QFont m_font;                    // the painter's font as far as this Graphics set it
    std::optional<QFontMetricsF> m_metrics;
    mutable std::vector<State> m_saved;
    mutable GraphicsState m_lastStateId = 0;
    mutable Status m_status = Ok;
};

} // namespace Gdiplus
