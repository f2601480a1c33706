#pragma once

class SceneState;

/// What an operator did between two states of a scene, as far as undoing it takes notice.
struct SceneChange {
    enum class Kind {
        None,
        Picked,    ///< picking an entry named it, or began a figure that it lacks
        Begun,     ///< an entry or a figure was added or cleared, and is to be drawn
        Drawn,     ///< the figure in hand got or lost points
        Attribute, ///< values, name or switch of an entry
        Other,     ///< an entry or a figure went, or was moved
    };

    Kind kind = Kind::None;
    int dataId = 0; ///< of the entry that was changed, or is gone
    int itemId = 0; ///< of the figure drawn; 0 for none

    static SceneChange between(const SceneState& before, const SceneState& after);
};
