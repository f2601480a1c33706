#include "workbench/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace
{

constexpr char kDarkName[] = "dark";

struct Colors {
    QColor ground;
    QColor sheet; ///< what is typed on
    QColor button;
    QColor text;
    QColor quiet;
    QColor disabled;
    QColor link;
};

const Colors kLight{0xF0F2F5, 0xFFFFFF, 0xE6E9EE, 0x303133, 0x535C6B, 0x5B6472, 0x0058B8};
const Colors kDark{0x1B1E23, 0x24282E, 0x2C3138, 0xE6E9ED, 0xA9B2BF, 0xA3ACB9, 0x8CC2FF};
const QColor kHighlight(0x0064CC);

} // namespace

QStringList Theme::names()
{
    return {QStringLiteral("light"), QString::fromLatin1(kDarkName)};
}

QPalette Theme::palette(bool dark)
{
    const Colors& colors = dark ? kDark : kLight;
    QPalette palette(colors.text, colors.button, colors.button.lighter(120),
                     colors.button.darker(160), colors.button.darker(130), colors.text, Qt::white,
                     colors.sheet, colors.ground);
    palette.setColor(QPalette::AlternateBase, colors.ground);
    palette.setColor(QPalette::ToolTipBase, colors.button);
    palette.setColor(QPalette::ToolTipText, colors.text);
    palette.setColor(QPalette::PlaceholderText, colors.quiet);
    palette.setColor(QPalette::Highlight, kHighlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, colors.link);
    palette.setColor(QPalette::LinkVisited, colors.link);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colors.disabled);
    return palette;
}

void Theme::apply(const QString& name)
{
    if (!names().contains(name))
        return;
    // The styles of some desktops paint in their own colours.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    QApplication::setPalette(palette(name == QLatin1String(kDarkName)));
}
