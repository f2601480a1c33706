#pragma once

#include "host/api/kqhostexport.h"
#include "host/gdiplus/basetypes.h"

#include <QFont>

namespace Gdiplus
{

/**
 * A font whose size does not depend on the screen: physical units count at 96 dots an inch, so 12
 * points are 16 pixels everywhere. The em is rounded to whole pixels.
 */
class KQHOST_EXPORT Font
{
public:
    /// A null or empty family stands for the application's default one.
    Font(const WCHAR* familyName, REAL emSize, INT style = FontStyleRegular, Unit unit = UnitPoint);
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    /// InvalidParameter when the size or unit is unusable; such a font draws nothing.
    Status GetLastStatus() const { return m_status; }

private:
    friend class Graphics;

    QFont m_font;
    Status m_status = Ok;
};

/// Where text stands in its layout rectangle; at the top left unless told otherwise.
class StringFormat
{
public:
    StringFormat() = default;
    StringFormat(const StringFormat&) = delete;
    StringFormat& operator=(const StringFormat&) = delete;

    /// Across the line.
    Status SetAlignment(StringAlignment align)
    {
        m_alignment = align;
        return Ok;
    }
    StringAlignment GetAlignment() const { return m_alignment; }

    /// From line to line.
    Status SetLineAlignment(StringAlignment align)
    {
        m_lineAlignment = align;
        return Ok;
    }
    StringAlignment GetLineAlignment() const { return m_lineAlignment; }

private:
    StringAlignment m_alignment = StringAlignmentNear;
    StringAlignment m_lineAlignment = StringAlignmentNear;
};

} // namespace Gdiplus
