#pragma once

#include "draw/figuretypes.h"
#include "tabel/elidedbutton.h"

#include <QString>

/// Push button of a scene's function: draws one kind of figure, the template's first of that kind
/// or another.
class DrawFucButton : public ElidedButton
{
    Q_OBJECT

public:
    DrawFucButton(BaseDrawType type, const QString& text, QWidget* parent = nullptr);

    BaseDrawType drawType() const { return m_drawType; }
    /// Ties the button to one of several template items of its kind, and names it after it.
    void setItemKey(const QString& key);
    /// Empty for the first item of the kind.
    const QString& itemKey() const { return m_itemKey; }

signals:
    /// @p type is the button's BaseDrawType.
    void sgnClicked(int type, const QString& itemKey);

private:
    BaseDrawType m_drawType;
    QString m_itemKey;
};
