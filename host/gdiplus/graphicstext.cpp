#include "host/gdiplus/graphics.h"

#include "host/gdiplus/font.h"
#include "host/gdiplus/ink.h"

#include <QPainter>
#include <QStringList>
#include <QVarLengthArray>

namespace Gdiplus
{

namespace
{

using TextLines = QVarLengthArray<QString, 1>;

/// As many characters as the system's text output takes; more would only cost time.
constexpr INT kMaximumLength = 8192;

INT boundedLength(const WCHAR* text, INT length)
{
    if (length >= 0)
        return qMin(length, kMaximumLength);
    INT count = 0;
    while (count < kMaximumLength && text[count])
        ++count;
    return count;
}

/// The lines of a text, which they refer to where they can: use them while @p text lives. Empty for
/// an empty text. A @p length of -1 means up to the terminating zero.
TextLines textLines(const WCHAR* text, INT length)
{
    const INT count = boundedLength(text, length);
    if (count == 0)
        return {};
    const QString whole = QString::fromRawData(reinterpret_cast<const QChar*>(text), count);
    TextLines lines;
    if (!whole.contains(QLatin1Char('\n'))) {
        lines.append(whole);
        return lines;
    }
    const QStringList parts = whole.split(QLatin1Char('\n'));
    for (const QString& part : parts)
        lines.append(part.endsWith(QLatin1Char('\r')) ? part.chopped(1) : part);
    return lines;
}

/// Free space before and after a line.
qreal margin(const QFont& font)
{
    return font.pixelSize() / 6.0;
}

/// Where a block of @p size begins in a range of @p length from @p start.
qreal aligned(StringAlignment alignment, qreal start, qreal length, qreal size)
{
    switch (alignment) {
    case StringAlignmentNear:
        return start;
    case StringAlignmentCenter:
        return start + (length - size) / 2;
    case StringAlignmentFar:
        return start + length - size;
    }
    return start;
}

} // namespace

Status Graphics::DrawString(const WCHAR* string, INT length, const Font* font, const PointF& origin,
                            const Brush* brush)
{
    return DrawString(string, length, font, RectF(origin.X, origin.Y, 0, 0), nullptr, brush);
}

Status Graphics::DrawString(const WCHAR* string, INT length, const Font* font,
                            const RectF& layoutRect, const StringFormat* stringFormat,
                            const Brush* brush)
{
    if (!canUse(string, length, font) || !brush)
        return report(InvalidParameter);
    const TextLines lines = textLines(string, length);
    applyTransform();
    selectFont(*font);
    selectTextColor(*brush);
    const auto across = stringFormat ? stringFormat->GetAlignment() : StringAlignmentNear;
    const auto down = stringFormat ? stringFormat->GetLineAlignment() : StringAlignmentNear;
    const qreal lineHeight = m_metrics->lineSpacing();
    const qreal gap = margin(m_font);
    qreal y =
        aligned(down, qreal(layoutRect.Y), qreal(layoutRect.Height), lines.size() * lineHeight);
    for (const QString& line : lines) {
        const qreal width =
            across == StringAlignmentNear ? 0 : m_metrics->horizontalAdvance(line) + 2 * gap;
        const qreal x = aligned(across, qreal(layoutRect.X), qreal(layoutRect.Width), width);
        m_painter->drawText(QPointF(x + gap, y + m_metrics->ascent()), line);
        y += lineHeight;
    }
    return Ok;
}

Status Graphics::MeasureString(const WCHAR* string, INT length, const Font* font,
                               const PointF& origin, RectF* boundingBox) const
{
    if (!canUse(string, length, font) || !boundingBox)
        return report(InvalidParameter);
    const TextLines lines = textLines(string, length);
    *boundingBox = RectF(origin.X, origin.Y, 0, 0);
    if (lines.isEmpty())
        return Ok;
    const QFontMetricsF metrics = metricsOf(*font);
    qreal width = 0;
    for (const QString& line : lines)
        width = qMax(width, metrics.horizontalAdvance(line));
    boundingBox->Width = REAL(width + 2 * margin(font->m_font));
    boundingBox->Height = REAL(lines.size() * metrics.lineSpacing());
    return Ok;
}

Status Graphics::MeasureString(const WCHAR* string, INT length, const Font* font,
                               const RectF& layoutRect, RectF* boundingBox) const
{
    return MeasureString(string, length, font, PointF(layoutRect.X, layoutRect.Y), boundingBox);
}

bool Graphics::canUse(const WCHAR* string, INT length, const Font* font) const
{
    return isReady() && string && length >= -1 && font && font->GetLastStatus() == Ok;
}

void Graphics::selectFont(const Font& font)
{
    QFont wanted = font.m_font;
    wanted.setStyleStrategy(m_state.textStrategy);
    // Setting a font costs a look-up in the font cache even when it is the same as before.
    if (m_metrics && m_font == wanted)
        return;
    m_painter->setFont(wanted);
    m_font = wanted;
    m_metrics = QFontMetricsF(wanted);
}

void Graphics::selectTextColor(const Brush& brush)
{
    // Text takes the pen's colour alone, and labels mostly have that of the lines before them.
    const QPen& pen = m_painter->pen();
    if (pen.style() == Qt::NoPen || pen.color() != brush.m_brush.color())
        m_painter->setPen(brush.m_brush.color());
}

QFontMetricsF Graphics::metricsOf(const Font& font) const
{
    if (m_metrics && m_font == font.m_font)
        return *m_metrics;
    return QFontMetricsF(font.m_font);
}

} // namespace Gdiplus
