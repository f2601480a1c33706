#pragma once

class QWidget;

/// Keyboard order inside a panel.
namespace TabOrder
{

/// Makes the focus go through @p panel's widgets from top to bottom, those made later included.
void fromTopToBottom(QWidget* panel);

} // namespace TabOrder
