#pragma once

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

/// Property that only sections have, a bool; their object name is the scene's.
constexpr char kFolded[] = "folded";
/// Property that only the buttons of entries and figures have, an int.
constexpr char kEntryId[] = "entryId";

} // namespace RowContract
