#pragma once

#include "host/gdiplus.h"

#include <QString>

/// @p text as GDI+ takes it, null-terminated; valid as long as @p text is.
inline const WCHAR* wideText(const QString& text)
{
    static_assert(sizeof(WCHAR) == sizeof(ushort), "GDI+ texts are UTF-16");
    return reinterpret_cast<const WCHAR*>(text.utf16());
}

/// How much of @p text is painted, as GDI+ takes it: no more than fits a picture.
inline INT paintedLength(const QString& text)
{
    constexpr INT kLongest = 512;
    return text.size() > kLongest ? kLongest : -1;
}
