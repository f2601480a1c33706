#pragma once

#include <QString>

class QFont;

/// The sizes of text of a skin, which gives them in pixels as they are for a desktop font of
/// 9 points.
namespace SkinFont
{

/// @p sheet with its sizes grown as @p desktop is larger, up to 16 points, and in points: so they
/// follow the screen's density as well.
QString fitted(const QString& sheet, const QFont& desktop);

} // namespace SkinFont
