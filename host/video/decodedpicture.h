#pragma once

#include <QImage>
#include <QSize>

namespace UICommonMdl
{

/// A picture as a decoder left it. It is made into an image only when that is asked for.
class DecodedPicture
{
public:
    DecodedPicture() = default;
    virtual ~DecodedPicture() = default;
    DecodedPicture(const DecodedPicture&) = delete;
    DecodedPicture& operator=(const DecodedPicture&) = delete;

    virtual QSize size() const = 0;
    /// The size in which it has its shape: another one when its points are not square.
    virtual QSize shownSize() const = 0;
    /// Of the shown size; this may take a moment. Null when it cannot be converted.
    virtual QImage image() const = 0;
};

} // namespace UICommonMdl
