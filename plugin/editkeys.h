#pragma once

class QKeyEvent;
class QString;

namespace IntelligentRulesUI
{

/// What a key does in a rules window, outside of the edits of its rows.
enum class EditKey {
    None,
    TakeBack, ///< the last point
    Finish,   ///< the figure, like a right press
    Leave,    ///< the points, or the drawing
    Undo,
    Redo,
    Help, ///< says what the keys do
    Idle  ///< ends a series of edits that are one step
};

EditKey editKeyOf(const QKeyEvent& event);

/// The key that does @p key, as sessions write it.
QString editKeyName(EditKey key);

} // namespace IntelligentRulesUI
