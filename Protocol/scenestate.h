#pragma once

#include "draw/figure.h"

#include <QString>
#include <memory>
#include <vector>

class DrawItem;
class RuleData;
class RuleDataInfo;

/// A figure and its place on the canvas, as a value.
struct FigureState {
    Figure figure;
    QString templateKey;
    DrawItemForbidenAreaType forbidenAreaType = DrawItemForbidenAreaType::ForbidenNone;
    int itemId = 0;
    int parentId = 0; ///< item id; 0 for none
    int dataId = 0;
    int sourceIndex = -1;

    static FigureState of(const DrawItem& item);
    /// Not yet on a canvas.
    std::unique_ptr<DrawItem> make() const;
    /// Labels aside, which follow from names and places.
    bool isSameAs(const FigureState& other) const;
    bool isEmpty() const { return figure.points().isEmpty(); }
};

/**
 * Entries and figures of a scene at one moment, with their ids and order, and what was selected:
 * all that an operator can change. A copy costs little, and states taken one after the other share
 * what is the same in both.
 */
class SceneState
{
public:
    using Entry = std::shared_ptr<const RuleDataInfo>;

    SceneState() = default;
    /// Shares with @p before what has not changed since.
    static SceneState of(const RuleData& data, const SceneState& before);

    /// Makes entries, figures and the current entry of @p data what they were. Figures come back
    /// unselected, with the ids that they had; those that change have to be saved again. Returns
    /// whether any does.
    bool restore(RuleData& data) const;

    /// Whether entries and figures are the same, whatever is selected.
    bool isSameAs(const SceneState& other) const;

    const std::vector<Entry>& entries() const { return m_entries; }
    const std::vector<std::shared_ptr<const FigureState>>& figures() const { return m_figures; }
    /// Null for unknown ids.
    Entry entry(int dataId) const;
    const FigureState* figure(int itemId) const;
    int selectedDataId() const { return m_selectedDataId; }
    /// Item id of the selected figure; 0 for none.
    int selectedItemId() const { return m_selectedItemId; }
    /// The selected figure while it is not finished, null otherwise.
    const FigureState* inHand() const;

    /// The same, but for the values of one entry that both have.
    SceneState withEntry(const Entry& entry) const;
    /// The same without that figure, which has no children, and with nothing selected.
    SceneState withoutFigure(int itemId) const;
    SceneState withNothingSelected() const;

private:
    std::vector<Entry> m_entries;
    std::vector<std::shared_ptr<const FigureState>> m_figures; ///< parents before children
    int m_selectedDataId = 0;
    int m_selectedItemId = 0;
};
