#pragma once

#include <QString>

class QWidget;

/// What an operator's hand can do with context menus. Returns why it could not be done, or an
/// empty text.
namespace MenuHand
{

/// Opens the menu of @p button with a right click and chooses what is called @p text. What is
/// disabled cannot be chosen; its tool tip is why.
QString choose(QWidget* button, const QString& text);

} // namespace MenuHand
