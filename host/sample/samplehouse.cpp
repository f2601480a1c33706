#include "host/sample/samplehouse.h"

#include "host/sample/streetview.h"

#include <QPainter>

using namespace UICommonMdl::streetview;

namespace UICommonMdl
{
namespace
{

constexpr qreal kDepth = 11;
constexpr qreal kStorey = 3;

struct House {
    qreal front; ///< x of the wall along the road; its sign is the road's side
    qreal start;
    qreal end;
    int storeys;
    QColor wall;
    QColor roof;
};

qreal sideOf(const House& house)
{
    return house.front < 0 ? -1 : 1;
}

/// A rectangle on the wall along the road.
void paintOnFront(QPainter& painter, const House& house, const QColor& color, const QRectF& at)
{
    const qreal x = house.front;
    paintFace(painter, color,
              {{x, at.top(), at.left()},
               {x, at.top(), at.right()},
               {x, at.bottom(), at.right()},
               {x, at.bottom(), at.left()}});
}

/// A rectangle on the wall towards the camera; @p at counts from the corner at the road.
void paintOnGable(QPainter& painter, const House& house, const QColor& color, const QRectF& at)
{
    const qreal x0 = house.front + sideOf(house) * at.left();
    const qreal x1 = house.front + sideOf(house) * at.right();
    paintFace(painter, color,
              {{x0, at.top(), house.start},
               {x1, at.top(), house.start},
               {x1, at.bottom(), house.start},
               {x0, at.bottom(), house.start}});
}

template<class PaintOn>
void paintWindows(QPainter& painter, const House& house, qreal from, qreal to, PaintOn paintOn)
{
    const QColor frame(0xEE, 0xEC, 0xE6);
    const QColor glass(0x5A, 0x6B, 0x78);
    const int columns = qMax(1, int((to - from) / 3));
    const qreal pitch = (to - from) / columns;
    for (int storey = 0; storey < house.storeys; ++storey) {
        for (int column = 0; column < columns; ++column) {
            const QRectF window(from + pitch * (column + 0.5) - 0.55, storey * kStorey + 0.95, 1.1,
                                1.45);
            paintOn(painter, house, frame, window.adjusted(-0.12, -0.12, 0.12, 0.12));
            paintOn(painter, house, glass, window);
            paintOn(painter, house, frame, {window.center().x() - 0.04, window.y(), 0.08, 1.45});
        }
    }
}

void paintRoof(QPainter& painter, const House& house)
{
    constexpr qreal kRise = 3.2;
    constexpr qreal kEaves = 0.4;
    const qreal top = house.storeys * kStorey;
    const qreal side = sideOf(house);
    const qreal ridge = house.front + side * kDepth / 2;
    const qreal back = house.front + side * kDepth;
    const qreal eaves = house.front - side * kEaves;
    paintFace(painter, house.wall.darker(side < 0 ? 116 : 106),
              {{house.front, top, house.start},
               {back, top, house.start},
               {ridge, top + kRise, house.start}});
    paintFace(painter, house.roof,
              {{eaves, top - 0.15, house.start - 0.2},
               {eaves, top - 0.15, house.end},
               {ridge, top + kRise, house.end},
               {ridge, top + kRise, house.start - 0.2}});
}

void paintHouse(QPainter& painter, const House& house)
{
    const qreal top = house.storeys * kStorey;
    // The sun stands to the left: the walls on the right-hand side are the bright ones.
    const bool isLeft = house.front < 0;
    paintOnFront(painter, house, isLeft ? house.wall.darker(112) : house.wall,
                 QRectF(QPointF(house.start, 0), QPointF(house.end, top)));
    paintOnFront(painter, house, house.wall.darker(135),
                 QRectF(QPointF(house.start, 0), QPointF(house.end, 0.5)));
    paintWindows(painter, house, house.start, house.end, paintOnFront);
    paintOnGable(painter, house, house.wall.darker(isLeft ? 116 : 106), {0, 0, kDepth, top});
    paintWindows(painter, house, 0, kDepth, paintOnGable);
    paintRoof(painter, house);
}

} // namespace

void paintHouses(QPainter& painter)
{
    const QColor brick(0xB0, 0x84, 0x6E);
    const QColor cream(0xE2, 0xD8, 0xC2);
    const QColor grey(0xC3, 0xC6, 0xC5);
    const QColor sand(0xD2, 0xB9, 0x94);
    const QColor tiles(0x8A, 0x56, 0x49);
    const QColor slate(0x5E, 0x66, 0x6D);
    const House houses[] = {
        {-18, 150, 176, 3, cream, slate}, {19, 150, 178, 3, brick, slate},
        {-18, 116, 144, 2, brick, tiles}, {19, 112, 142, 2, cream, tiles},
        {-18, 86, 110, 3, sand, tiles},   {19, 80, 104, 3, grey, slate},
        {-18, 58, 80, 2, cream, tiles},   {19, 52, 73, 2, sand, tiles},
        {-18, 34, 52, 2, grey, slate},    {19, 30, 46, 2, brick, slate},
    };
    for (const House& house : houses)
        paintHouse(painter, house);
}

} // namespace UICommonMdl
