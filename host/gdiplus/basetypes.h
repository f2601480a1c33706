#pragma once

#include <cstdint>

class QPainter;

// The system's basic types, global as they are there.
using BOOL = int;
using BYTE = std::uint8_t;
using INT = int;
using UINT = unsigned int;
using WCHAR = char16_t;
using ULONG_PTR = std::uintptr_t;
/// A device context: the painter of the pane that is being painted.
using HDC = QPainter*;

/// Names, numbers and argument orders are GDI+'s; what the painting code does not use is left out.
namespace Gdiplus
{

using REAL = float;
/// 0xAARRGGBB, not premultiplied.
using ARGB = std::uint32_t;
using GraphicsState = UINT;

enum Status {
    Ok = 0,
    GenericError = 1,
    InvalidParameter = 2,
    OutOfMemory = 3,
    ObjectBusy = 4,
    UnsupportedGdiplusVersion = 17
};

enum Unit { UnitPoint = 3 };

enum FillMode { FillModeAlternate = 0, FillModeWinding = 1 };

enum FontStyle {
    FontStyleRegular = 0,
    FontStyleBold = 1,
    FontStyleItalic = 2,
    FontStyleBoldItalic = 3,
    FontStyleUnderline = 4,
    FontStyleStrikeout = 8
};

enum SmoothingMode {
    SmoothingModeInvalid = -1,
    SmoothingModeDefault = 0,
    SmoothingModeHighSpeed = 1,
    SmoothingModeHighQuality = 2,
    SmoothingModeNone = 3,
    SmoothingModeAntiAlias = 4
};

enum TextRenderingHint { TextRenderingHintSystemDefault = 0, TextRenderingHintAntiAlias = 4 };

} // namespace Gdiplus
