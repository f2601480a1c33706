#pragma once

#include <qnamespace.h>

/**
 * What a host may rely on in a rules window, so that it can follow what an operator edits, and do
 * it again, without knowing the window's classes.
 *
 * A row is a widget with the property kKind; its object name is the key of the attribute. The
 * property kValue holds what the row shows, and its notify signal tells each change that came from
 * the operator, once the row has taken it over.
 */
namespace RowContract
{

/// Property of rows, an int: a Kind. There may be kinds that a host does not know.
constexpr char kKind[] = "rowKind";
/// Property of rows; the kind tells its type.
constexpr char kValue[] = "rowValue";

enum Kind {
    None,
    Text,    ///< a QString, in the QLineEdit kEdit
    Choices, ///< the stored values as a QStringList; a checkable button for each, with kOption
    Choice,  ///< the stored value as a QString, empty for none; checkable buttons as above
    Switch,  ///< a bool; a checkable button
    /// A QSize without what is still being typed, -1 for an empty limit; in the QLineEdits kMinimum
    /// and kMaximum
    Range
};

/// Object names of line edits in rows.
constexpr char kEdit[] = "edit";
constexpr char kMinimum[] = "minimum";
constexpr char kMaximum[] = "maximum";
/// Property of an option's button, a QString: its stored value.
constexpr char kOption[] = "value";

// Of sections, whose object name is the scene's: properties, bools, of which no other widget has
// the first ...
constexpr char kFolded[] = "folded";
constexpr char kSelected[] = "selected";
// ... and object names of what a press selects and folds, of the tables of entries' and figures'
// buttons, and of an entry's check box.
constexpr char kTitleBar[] = "titleBar";
constexpr char kMask[] = "mask";
constexpr char kEntries[] = "drawItems";
constexpr char kFigures[] = "childDrawItems";
constexpr char kEnable[] = "enable";
/// Whether @p key, pressed in kTitleBar, folds or unfolds the section.
constexpr bool isFoldKey(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}
/// Object name of a section's label for its hint.
constexpr char kHint[] = "hint";
/// Property that only the buttons of entries and figures have, an int.
constexpr char kEntryId[] = "entryId";

/// Object name of the context menu of an entry's button, which has kEntryId, too; and of its action
/// that takes an entry from the clipboard.
constexpr char kEntryMenu[] = "entryMenu";
constexpr char kPaste[] = "paste";
/// The key that does so, as QKeySequence writes it.
constexpr char kPasteKey[] = "Ctrl+V";
/// What an entry in the clipboard is: JSON.
constexpr char kEntryType[] = "application/vnd.intelligentrules.entry+json";

// Object names of the window's buttons, and of its labels: for notices, and for why it does not do
// what it was asked for. Save is disabled while
// nothing is loaded, and hidden in a read-only window.
constexpr char kSave[] = "btnSave";
constexpr char kCancel[] = "btnCancel";
constexpr char kNotices[] = "lblNotices";
constexpr char kRefusal[] = "lblHint";
constexpr char kUndo[] = "btnUndo";
constexpr char kRedo[] = "btnRedo";

/// Property of the window, a QString: a key that it takes for itself, as QKeySequence writes it.
/// Its notify signal tells each that is pressed, before the window does what it is for.
constexpr char kUsedKey[] = "usedKey";

/// Property of the window, a bool: whether anything is not as it was at the load or the last save.
/// Its notify signal tells when it may be another one. What is being typed counts once it is
/// finished.
constexpr char kEdited[] = "edited";

/// Object name of the view that shows the sections.
constexpr char kSections[] = "sceneView";

/// Slot of the window: takes over what is being typed, and lets go of a corner that is moved, as a
/// save does before it looks.
constexpr char kFinish[] = "sltFinish";

/// Slot of the window: tells and shows the operator what a save would be refused for, as Save does,
/// and saves nothing.
constexpr char kCheck[] = "sltCheck";

} // namespace RowContract
