#pragma once

#include "draw/figuretypes.h"

#include <QPoint>
#include <functional>
#include <memory>
#include <optional>

class CorrectionCheck;
class DrawItem;
class DrawScene;
class Figure;
class FigureMove;
class HandlePainter;
struct FigureHandle;
namespace Gdiplus
{
class Graphics;
}

/**
 * Corrects finished figures of a canvas: shows handles on the one under the mouse, moves corners
 * and whole figures, adds and removes corners. What was taken last stays chosen.
 *
 * Only figures of the current entry can be taken, and none while one is being drawn. While one is
 * moved, the canvas only shows it elsewhere; the figure itself changes when it is let go. Positions
 * and distances are canvas pixels.
 */
class FigureCorrector
{
public:
    /// Which rule drawing has for where that figure may lie.
    using AreaRule = std::function<DrawItemForbidenAreaType(const DrawItem&)>;

    FigureCorrector();
    ~FigureCorrector();
    FigureCorrector(const FigureCorrector&) = delete;
    FigureCorrector& operator=(const FigureCorrector&) = delete;

    /// Works on @p scene from now on, with nothing chosen; null for none. It is not owned.
    void setScene(DrawScene* scene, AreaRule rule);

    /// The mouse is at @p at, or nowhere. Whether the canvas looks different now.
    bool hover(const std::optional<QPoint>& at);
    /// Whether there is a handle to take at @p at.
    bool hasHandle(const QPoint& at) const;

    /// Takes the handle at @p at, or with @p isWhole the figure around it, and chooses it. False
    /// where there is nothing to take; then nothing is chosen.
    bool take(const QPoint& at, bool isWhole);
    bool isMoving() const { return m_move != nullptr; }
    /// Shows what was taken as far from where it was as @p to is from @p from. A corner follows
    /// onto the border of the picture. Whether it looks different now.
    bool moveTo(const QPoint& from, const QPoint& to);
    /// Ends the move where it is, or where it began when it may not be there. Whether the figure
    /// is another one now.
    bool letGo();
    /// Ends the move where it began.
    void putBack();

    bool hasChosen() const { return m_itemId != 0; }
    /// Names what is chosen, for telling moves of one thing from those of another.
    QString chosenName() const;
    void chooseNothing();
    /// Whether what is chosen is still there, finished, and of the current entry.
    bool isChosenThere() const;
    /// Moves what is chosen. Whether it did; where it was refused, the scene says why.
    bool moveChosen(const QPoint& pixels);
    /// Removes the corner that is chosen. Whether it did.
    bool removeChosen();
    /// Removes the corner at @p at. Whether it did.
    bool removeAt(const QPoint& at);

    /// Paints the handles.
    void draw(Gdiplus::Graphics* graphics) const;

private:
    static constexpr int kWhole = -1;

    struct Target {
        DrawItem* item = nullptr; ///< null for none
        int corner = kWhole;
        int line = -1; ///< whose middle was meant; -1 for a corner
    };

    Target handleAt(const QPoint& at) const;
    DrawItem* figureAt(const QPoint& at, bool mustHold) const;
    DrawItem* hoveredAt(const QPoint& at) const;
    bool mayTake(const DrawItem& item) const;
    DrawItem* chosenItem() const;
    void start(const Target& target);
    void choose(const DrawItem& item, int corner);
    bool isNewCorner() const;
    bool isChosen(const FigureHandle& handle) const;
    bool removeCorner(DrawItem& item, int corner);
    bool change(DrawItem& item, const Figure& figure, DrawRefusal refusal);
    bool move(DrawItem& item, const Figure& moved, const FigureMove& move, DrawRefusal refusal);
    QPoint pastBorder(const QPoint& from, const QPoint& to) const;
    QPoint normalized(const QPoint& pixels) const;

    DrawScene* m_scene = nullptr; ///< not owned
    AreaRule m_rule;
    int m_hoveredId = 0;
    int m_itemId = 0; ///< of the figure that is chosen; 0 for none
    int m_corner = kWhole;
    int m_pointCount = 0; ///< of that figure; with another number corners are other ones
    std::unique_ptr<const FigureMove> m_move; ///< while something is moved
    std::unique_ptr<const CorrectionCheck> m_check;
    std::unique_ptr<const Figure> m_moved;
    DrawRefusal m_refusal = DrawRefusal::None; ///< of the move
};
