#include "draw/labelfont.h"

#include <QFont>
#include <QGuiApplication>
#include <memory>

namespace
{

const Gdiplus::REAL kPointSize = 12.0F;

std::unique_ptr<Gdiplus::Font>& sharedFont()
{
    static std::unique_ptr<Gdiplus::Font> font;
    return font;
}

} // namespace

const Gdiplus::Font& LabelFont::font()
{
    std::unique_ptr<Gdiplus::Font>& font = sharedFont();
    if (!font) {
        const QString family = QGuiApplication::font().family();
        font = std::make_unique<Gdiplus::Font>(wide(family), kPointSize, Gdiplus::FontStyleRegular,
                                               Gdiplus::UnitPoint);
    }
    return *font;
}

const WCHAR* LabelFont::wide(const QString& text)
{
    static_assert(sizeof(WCHAR) == sizeof(ushort), "GDI+ texts are UTF-16");
    return reinterpret_cast<const WCHAR*>(text.utf16());
}

void LabelFont::release()
{
    sharedFont().reset();
}
