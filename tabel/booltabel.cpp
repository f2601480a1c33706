#include "tabel/booltabel.h"

#include <QCheckBox>

BoolTabel::BoolTabel(QWidget* parent) : ControlTabel(parent), m_switch(new QCheckBox(this))
{
    setItemType(ItemSizeType::ItemFixSize);
    m_switch->setObjectName(QStringLiteral("switch"));
    m_switch->show();
    addWidget(m_switch, false);
    connect(m_switch, &QCheckBox::clicked, this, [this] { announce(); });
}

void BoolTabel::setValue(const QVariant& value, bool emitChange)
{
    m_switch->setChecked(value.toBool());
    if (emitChange)
        announce();
}

QVariant BoolTabel::value() const
{
    return m_switch->isChecked();
}
