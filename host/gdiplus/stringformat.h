#pragma once

#include "host/gdiplus/basetypes.h"

namespace Gdiplus
{

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
