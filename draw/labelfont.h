#pragma once

namespace Gdiplus
{
class Font;
}

/**
 * The font of figure labels and hints: 12 points, in the family of the application's font.
 * One is shared by all figures.
 */
class LabelFont
{
public:
    /// Made on demand; holds until release().
    static const Gdiplus::Font& font();
    /// To be called before GDI+ is shut down, which must not outlive its fonts.
    static void release();
};
