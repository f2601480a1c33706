#include "host/streams/pictureshape.h"

#include "host/video/picturesize.h"

#include <algorithm>
#include <cmath>
#include <cstring>

extern "C" {
#include <libavutil/display.h>
}

namespace UICommonMdl
{
namespace
{

/// The four factors of a display matrix, the largest of them made 1.
struct Factors {
    int a, b, c, d;
};

Factors factorsOf(const uint8_t* matrix)
{
    int32_t entries[5];
    std::memcpy(entries, matrix, sizeof entries);
    const double all[] = {double(entries[0]), double(entries[1]), double(entries[3]),
                          double(entries[4])};
    double largest = 1;
    for (const double factor : all)
        largest = std::max(largest, std::abs(factor));
    const auto whole = [&](int i) { return int(std::lround(all[i] / largest)); };
    return {whole(0), whole(1), whole(2), whole(3)};
}

QSize withSquarePoints(const QSize& size, const AVRational& points)
{
    if (points.num <= 0 || points.den <= 0)
        return size;
    const double ratio = av_q2d(points);
    // One side is enlarged rather than the other made smaller: nothing is lost.
    return ratio > 1 ? QSize(int(std::lround(std::min(size.width() * ratio, 1e6))), size.height())
                     : QSize(size.width(), int(std::lround(std::min(size.height() / ratio, 1e6))));
}

} // namespace

QSize PictureShape::turned(const QSize& size) const
{
    return turn.m11() == 0 ? size.transposed() : size;
}

QSize PictureShape::shown(const QSize& decoded) const
{
    const QSize square = withSquarePoints(decoded, points);
    // No camera has points of such a shape: what tells of them is damaged.
    return turned(isPlausibleSize(square) ? square : decoded);
}

QTransform turnOf(const AVStream& stream)
{
    std::size_t bytes = 0;
    const uint8_t* const matrix =
        av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &bytes);
    if (!matrix || bytes < 9 * sizeof(int32_t))
        return {};
    const Factors found = factorsOf(matrix);
    const bool isUpright = found.b == 0 && found.c == 0 && found.a != 0 && found.d != 0;
    const bool isAcross = found.a == 0 && found.d == 0 && found.b != 0 && found.c != 0;
    return isUpright || isAcross ? QTransform(found.a, found.b, found.c, found.d, 0, 0)
                                 : QTransform();
}

} // namespace UICommonMdl
