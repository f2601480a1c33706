#pragma once

#include <QString>
#include <QStringList>

/// Guesses what a misspelt text was meant to be.
namespace Suggestion
{

/// The one of @p spellings that is nearest to @p text, at most two edits away or apart in case
/// alone, of equals the first; null for none. Texts of fewer than four letters are too near to
/// everything, and so are operators: of them only case may differ.
QString nearest(const QString& text, const QStringList& spellings);

} // namespace Suggestion
