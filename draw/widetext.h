#pragma once

#include "host/gdiplus.h"

#include <QString>

/// @p text as GDI+ takes it, null-terminated; valid as long as @p text is.
inline const WCHAR* wideText(const QString& text)
{
    static_assert(sizeof(WCHAR) == sizeof(ushort), "GDI+ texts are UTF-16");
    return reinterpret_cast<const WCHAR*>(text.utf16());
}
