#pragma once

#include <QPushButton>

/// Push button that elides a text which it has no room for. Who sets a text that may be too long
/// sets it as tool tip, too.
class ElidedButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};
