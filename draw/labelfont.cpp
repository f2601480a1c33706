#include "draw/labelfont.h"

#include "draw/widetext.h"
#include "host/gdiplus.h"

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
        font = std::make_unique<Gdiplus::Font>(wideText(family), kPointSize,
                                               Gdiplus::FontStyleRegular, Gdiplus::UnitPoint);
    }
    return *font;
}

void LabelFont::release()
{
    sharedFont().reset();
}
