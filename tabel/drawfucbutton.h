#pragma once

#include "draw/basedrawtype.h"

#include <QPushButton>

/// Push button of a scene's function: draws one kind of figure.
class DrawFucButton : public QPushButton
{
    Q_OBJECT

public:
    DrawFucButton(BaseDrawType type, const QString& text, QWidget* parent = nullptr);

    BaseDrawType drawType() const { return m_drawType; }

signals:
    /// @p type is the button's BaseDrawType.
    void sgnClicked(int type);

private:
    BaseDrawType m_drawType;
};
