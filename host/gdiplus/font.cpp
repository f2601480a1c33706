#include "host/gdiplus/font.h"

#include <QString>

namespace Gdiplus
{

namespace
{

constexpr REAL kMaximumEm = 4096;

/// Pixels of one @p unit at 96 dots an inch; 0 for a unit that is none.
REAL pixelsPerUnit(Unit unit)
{
    switch (unit) {
    case UnitWorld:
    case UnitDisplay:
    case UnitPixel:
        return 1;
    case UnitPoint:
        return 96.0F / 72;
    case UnitInch:
        return 96;
    case UnitDocument:
        return 96.0F / 300;
    case UnitMillimeter:
        return 96 / 25.4F;
    }
    return 0;
}

} // namespace

Font::Font(const WCHAR* familyName, REAL emSize, INT style, Unit unit)
{
    const REAL em = emSize * pixelsPerUnit(unit);
    // Written so that a size which is no number fails too.
    if (!(em > 0 && em <= kMaximumEm)) {
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
