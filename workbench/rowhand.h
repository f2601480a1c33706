#pragma once

#include "host/json/fwd.h"

#include <QString>

class QWidget;

/// Sets and reads an attribute row as an operator does, whatever edits it.
namespace RowHand
{

/**
 * Types or clicks @p value into @p row: a text or number for an input box, a bool for a switch,
 * a stored value for radio buttons, a list of stored values for check boxes, [minimum, maximum]
 * with null for empty for a range. Returns why it could not be done, or an empty text.
 */
QString set(QWidget* row, const kql::Json::Value& value);

/// Types @p text into the row's edit of that object name, into its first one when that is empty,
/// and leaves the edit unfinished.
QString type(QWidget* row, const QString& text, const QString& edit);

/// Whether the row is of a kind that set() and shown() know.
bool isKnown(const QWidget* row);

/// Whether the row is typed into, and takes over what was typed when the edit ends.
bool isTyped(const QWidget* row);

/// What the row holds, in the form that set() takes; a text for an input box.
kql::Json::Value shown(const QWidget* row);

/// Whether an operator could change the row: some editor of it is enabled.
bool isUsable(const QWidget* row);

} // namespace RowHand
