#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <optional>

/// What figures are painted over: a picture of a camera, or black.
struct Ground {
    static constexpr int kLeastSide = 16; ///< in pixels
    static constexpr int kMostSide = 8192;

    QSize size{1920, 1080};
    QImage picture;     ///< null for black
    QByteArray dataUrl; ///< of the picture, for pages and SVG

    /// Black of a size "WxH"; nothing where it is none, or not within the sides.
    static std::optional<Ground> ofSize(const QString& text);
    /// The picture in a file; nothing with @p why where there is none that can be used.
    static std::optional<Ground> ofFile(const QString& path, QString& why);
};
