#pragma once

#include <QtGlobal>
#include <vector>

class BaseDraw;
class DrawItem;
namespace Gdiplus
{
class Graphics;
}

/// A figure to be painted, and how it stands out besides its own strokes.
struct PaintedFigure {
    enum Look {
        Plain = 0,
        OfCurrentEntry = 1, ///< but not the one that is selected
        Emphasised = 2,
        Faulty = 4
    };
    static constexpr quint64 kLooks = 8; ///< what they can be together

    /// What is painted of figures, from the bottom up.
    enum Part {
        Bands = 1,   ///< around what stands out
        Casings = 2, ///< what lets strokes and names be told from any picture
        Strokes = 4  ///< with signs
    };

    BaseDraw* figure; ///< not owned
    int look = Plain;

    /// As BaseDraw::revision(), and another number where @p parts look otherwise for another look.
    quint64 revision(int parts) const;
    /// Paints @p parts of all figures, each part of all before the next. Nothing is painted smooth
    /// where the figures have very many points together.
    static void paint(Gdiplus::Graphics& graphics, const std::vector<PaintedFigure>& figures,
                      int parts);

private:
    void paintBands(Gdiplus::Graphics& graphics) const;
    void paintSign(Gdiplus::Graphics& graphics) const;
};

/// Which figures of a canvas stand out, by the ids of entries and items; 0 is none.
class FigureLooks
{
public:
    /// Emphasises the figures of an entry, or one of them alone. Whether it is another one now.
    bool emphasise(int dataId, int itemId);
    /// Marks a figure for which a save was refused. Whether it is another one now.
    bool setFaulty(int itemId);
    /// Of @p item, which has a figure, while the entry @p currentDataId is current.
    PaintedFigure of(const DrawItem& item, int currentDataId) const;

private:
    int m_emphasisedEntry = 0;
    int m_emphasisedItem = 0;
    int m_faultyItem = 0;
};
