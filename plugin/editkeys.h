#pragma once

class QKeyEvent;
class QPoint;
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
    Help,   ///< says what the keys do
    Press,  ///< at the cross-hair, like a left press; takes and lets go of a handle
    Remove, ///< the corner that is chosen
    Left,   ///< moves what is chosen, else the cross-hair, by a pixel
    Right,
    Up,
    Down,
    FarLeft, ///< by ten
    FarRight,
    FarUp,
    FarDown,
    Copy, ///< the current entry
    Paste,
    Duplicate,
    Idle ///< ends a series of edits that are one step
};

EditKey editKeyOf(const QKeyEvent& event);

/// By how many pixels the key moves; by none if it is for something else.
QPoint editKeyWay(EditKey key);

/// The key that does @p key, as sessions write it.
QString editKeyName(EditKey key);

} // namespace IntelligentRulesUI
