#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

/// How colours can be told apart, as the accessibility guidelines of the web count it.
namespace Contrast
{

constexpr double kMarks = 3.0;
constexpr double kTexts = 4.5;

/// 0 for black to 1 for white.
inline double luminance(QRgb color)
{
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

/// 1 for the same colour to 21 for black on white.
inline double ratio(QRgb one, QRgb other)
{
    const auto [dark, bright] = std::minmax({luminance(one), luminance(other)});
    return (bright + 0.05) / (dark + 0.05);
}

} // namespace Contrast
