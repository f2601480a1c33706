#include "host/gdiplus/font.h"

#include <QString>

namespace Gdiplus
{

namespace
{

constexpr REAL kMaximumEm = 4096;

/// At 96 dots an inch.
constexpr REAL kPixelsPerPoint = 96.0F / 72;

} // namespace

Font::Font(const WCHAR* familyName, REAL emSize, INT style, Unit unit)
{
    const REAL em = emSize * kPixelsPerPoint;
    // Written so that a size which is no number fails too.
    if (unit != UnitPoint || !(em > 0 && em <= kMaximumEm)) {
        m_status = InvalidParameter;
        return;
    }
    if (familyName && *familyName)
        m_font.setFamily(QString::fromUtf16(familyName));
    m_font.setPixelSize(qMax(1, qRound(em)));
    m_font.setWeight(style & FontStyleBold ? QFont::Bold : QFont::Normal);
    m_font.setItalic(style & FontStyleItalic);
    m_font.setUnderline(style & FontStyleUnderline);
    m_font.setStrikeOut(style & FontStyleStrikeout);
}

} // namespace Gdiplus
