#pragma once

#include "draw/figure.h"

#include <QSize>
#include <QVector>
#include <memory>

class DrawItem;
class FigureMove;
class ForbidenArea;
struct FigureSurroundings;

/**
 * Whether a figure that is being corrected may be what it became: what drawing would refuse is
 * refused, unless it was so before. Good for as long as the other figures stay as they are.
 */
class CorrectionCheck
{
public:
    /// Of the figure of @p item, to which drawing applies the rule @p area.
    CorrectionCheck(const FigureSurroundings& surroundings, const DrawItem& item,
                    DrawItemForbidenAreaType area);
    ~CorrectionCheck();
    CorrectionCheck(const CorrectionCheck&) = delete;
    CorrectionCheck& operator=(const CorrectionCheck&) = delete;

    /// Why the figure may not become @p figure, of which no point was moved.
    DrawRefusal ofShape(const Figure& figure) const;
    /// Why it may not become @p figure, which @p move made of it.
    DrawRefusal ofMove(const Figure& figure, const FigureMove& move) const;

private:
    bool leavesChild(const Figure& figure) const;
    bool entersArea(const Figure& figure, const FigureMove& move) const;
    bool isTurnedLane(const Figure& figure) const;
    QPoint onCanvas(const QPoint& point) const;
    std::unique_ptr<const ForbidenArea> outside(const Figure& figure) const;

    Figure m_original;
    QSize m_canvasSize;
    DrawItemForbidenAreaType m_areaType;
    std::unique_ptr<const ForbidenArea> m_area; ///< of the other figures; null for none
    QVector<QPoint> m_inside;                   ///< points of its children, canvas pixels
    bool m_isCrossed = false;
};
