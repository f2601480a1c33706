#include "draw/figurehandle.h"

#include "draw/canvasfigure.h"
#include "draw/drawgeometry.h"
#include "draw/figurekinds.h"
#include "draw/figureshape.h"
#include "host/api/limits.h"

#include <cmath>

namespace
{

double distance(const QPoint& a, const QPoint& b)
{
    return std::hypot(double(a.x()) - b.x(), double(a.y()) - b.y());
}

} // namespace

QVector<FigureHandle> FigureHandle::of(const CanvasFigure& figure)
{
    const int points = figure.points().size();
    if (points > Limits::kCorrectedPoints)
        return {};
    QVector<FigureHandle> handles;
    const FigureShape shape(figure);
    for (int i = 0; i < shape.corners().size(); ++i)
        handles.append({Kind::Corner, i, shape.corners()[i]});
    const FigureForm form = FigureKind::formOf(figure.figure().kind());
    const bool takesMore = form == FigureForm::Line || form == FigureForm::Ring;
    if (!takesMore || points >= figure.figure().pointLimits().maximum)
        return handles;
    for (int i = 0; i < shape.lines().size(); ++i)
        handles.append(
            {Kind::Middle, i, DrawGeometry::middle(shape.lines()[i].p1(), shape.lines()[i].p2())});
    return handles;
}

std::optional<FigureHandle> FigureHandle::nearest(const QVector<FigureHandle>& handles,
                                                  const QPoint& at)
{
    std::optional<FigureHandle> found;
    for (const FigureHandle& handle : handles) {
        const bool isInReach = distance(handle.at, at) <= FigureShape::kReach;
        if (isInReach && (!found || handle.isBefore(*found, at)))
            found = handle;
    }
    return found;
}

bool FigureHandle::isBefore(const FigureHandle& other, const QPoint& place) const
{
    const double mine = distance(at, place);
    const double others = distance(other.at, place);
    return mine < others || (mine == others && kind == Kind::Corner && other.kind == Kind::Middle);
}
