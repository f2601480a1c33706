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
using PixelFormat = INT;

constexpr PixelFormat PixelFormat32bppARGB = 0x26200A;
constexpr PixelFormat PixelFormat32bppPARGB = 0xE200B;

enum Status {
    Ok = 0,
    GenericError = 1,
    InvalidParameter = 2,
    OutOfMemory = 3,
    ObjectBusy = 4,
    UnsupportedGdiplusVersion = 17
};

enum Unit {
    UnitWorld = 0,
    UnitDisplay = 1,
    UnitPixel = 2,
    UnitPoint = 3,
    UnitInch = 4,
    UnitDocument = 5,
    UnitMillimeter = 6
};

enum FillMode { FillModeAlternate = 0, FillModeWinding = 1 };

enum MatrixOrder { MatrixOrderPrepend = 0, MatrixOrderAppend = 1 };

enum DashStyle {
    DashStyleSolid = 0,
    DashStyleDash = 1,
    DashStyleDot = 2,
    DashStyleDashDot = 3,
    DashStyleDashDotDot = 4
};

enum LineCap { LineCapFlat = 0, LineCapSquare = 1, LineCapRound = 2 };

enum DashCap { DashCapFlat = 0, DashCapRound = 2 };

enum FontStyle {
    FontStyleRegular = 0,
    FontStyleBold = 1,
    FontStyleItalic = 2,
    FontStyleBoldItalic = 3,
    FontStyleUnderline = 4,
    FontStyleStrikeout = 8
};

enum StringAlignment { StringAlignmentNear = 0, StringAlignmentCenter = 1, StringAlignmentFar = 2 };

enum SmoothingMode {
    SmoothingModeInvalid = -1,
    SmoothingModeDefault = 0,
    SmoothingModeHighSpeed = 1,
    SmoothingModeHighQuality = 2,
    SmoothingModeNone = 3,
    SmoothingModeAntiAlias = 4
};

enum TextRenderingHint {
    TextRenderingHintSystemDefault = 0,
    TextRenderingHintSingleBitPerPixelGridFit = 1,
    TextRenderingHintSingleBitPerPixel = 2,
    TextRenderingHintAntiAliasGridFit = 3,
    TextRenderingHintAntiAlias = 4,
    TextRenderingHintClearTypeGridFit = 5
};

} // namespace Gdiplus
