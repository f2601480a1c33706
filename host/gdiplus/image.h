#pragma once

#include "host/api/kqhostexport.h"
#include "host/gdiplus/basetypes.h"

#include <memory>

class QImage;

namespace Gdiplus
{

/// Base of what can be painted on and painted as a whole.
class KQHOST_EXPORT Image
{
public:
    virtual ~Image();
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    /// In the coordinates that a Graphics on this image uses.
    UINT GetWidth() const { return m_width; }
    UINT GetHeight() const { return m_height; }
    Status GetLastStatus() const { return m_status; }

protected:
    /// Null @p pixels where @p status is Ok mean that there was no memory for them.
    Image(std::shared_ptr<QImage> pixels, UINT width, UINT height, Status status);

private:
    friend class Graphics;

    std::shared_ptr<QImage> m_pixels; // shared with the Graphics that paint on it
    UINT m_width;
    UINT m_height;
    Status m_status;
};

} // namespace Gdiplus
