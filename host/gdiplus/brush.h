#pragma once

#include "host/api/kqhostexport.h"
#include "host/gdiplus/color.h"

#include <QBrush>

namespace Gdiplus
{

/// Base of what fills areas and text.
class KQHOST_EXPORT Brush
{
public:
    virtual ~Brush();
    Brush(const Brush&) = delete;
    Brush& operator=(const Brush&) = delete;

protected:
    explicit Brush(const QBrush& brush);

private:
    friend class Graphics;

    QBrush m_brush;
};

class KQHOST_EXPORT SolidBrush : public Brush
{
public:
    explicit SolidBrush(const Color& color);
};

} // namespace Gdiplus
