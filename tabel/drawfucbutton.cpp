#include "tabel/drawfucbutton.h"

#include "tabel/plaintext.h"

DrawFucButton::DrawFucButton(BaseDrawType type, const QString& text, QWidget* parent)
    : ElidedButton(PlainText::button(text), parent), m_drawType(type)
{
    setObjectName(QStringLiteral("fuc%1").arg(int(type)));
    setToolTip(PlainText::toolTip(text));
    connect(this, &QPushButton::clicked, this,
            [this] { emit sgnClicked(int(m_drawType), m_itemKey); });
}

void DrawFucButton::setItemKey(const QString& key)
{
    m_itemKey = key;
    setObjectName(QStringLiteral("fuc%1").arg(int(m_drawType)) + key);
}
