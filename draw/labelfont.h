#pragma once

#include "host/gdiplus.h"

#include <QString>

/**
 * The font of figure labels and hints: 12 points, in the family of the application's font.
 * One is shared by all figures.
 */
class LabelFont
{
public:
    /// Made on demand; holds until release().
    static const Gdiplus::Font& font();
    /// @p text as GDI+ takes it, null-terminated; valid as long as @p text is.
    static const WCHAR* wide(const QString& text);
    /// To be called before GDI+ is shut down, which must not outlive its fonts.
    static void release();
};
