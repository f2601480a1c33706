#pragma once

/**
 * GDI+ for the painting code: the system's own on Windows, elsewhere classes of the same names over
 * QPainter. Code that paints includes this header alone and compiles unchanged against either.
 */
#if defined(_WIN32)

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// The system's header wants objidl.h before it, and min and max, which NOMINMAX takes away.
#include <objidl.h>

#include <algorithm>

namespace Gdiplus
{
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>

#else

#include "host/gdiplus/bitmap.h"
#include "host/gdiplus/font.h"
#include "host/gdiplus/gdiplusstartup.h"
#include "host/gdiplus/graphics.h"
#include "host/gdiplus/graphicspath.h"
#include "host/gdiplus/ink.h"

#endif
