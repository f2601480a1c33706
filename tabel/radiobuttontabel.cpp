#include "tabel/radiobuttontabel.h"

#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"
#include "tabel/radiobuttonwidget.h"

#include <QButtonGroup>
#include <algorithm>

RadioButtonTabel::RadioButtonTabel(QWidget* parent) : OptionsTabel(parent)
{
    makeGroup();
}

/// Emptied one by one, a group would look through all of its buttons for each.
void RadioButtonTabel::makeGroup()
{
    delete m_group;
    m_group = new QButtonGroup(this);
    connect(m_group, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &RadioButtonTabel::sltBtnClicked);
}

void RadioButtonTabel::init()
{
    makeGroup();
    deleteAll();
    const auto options = protocolItem() ? protocolItem()->enumeration() : QList<EnumOption>();
    for (const EnumOption& option : options) {
        auto* button = new RadioButtonWidget(option, protocolItem()->valueType(), this);
        m_group->addButton(button, 0); // without an id it would look for a free one among all
        button->show();
        addWidget(button, false);
    }
    ControlTabel::init();
}

void RadioButtonTabel::setValue(const QVariant& value, bool emitChange)
{
    QAbstractButton* button = findButton(value);
    if (button)
        button->setChecked(true);
    else if (emitChange)
        announce();
}

QAbstractButton* RadioButtonTabel::findButton(const QVariant& value) const
{
    if (!value.isValid())
        return nullptr;
    const auto type = protocolItem() ? protocolItem()->valueType() : ValueType::None;
    const QString wanted = ComparableText::of(value.toString(), type);
    const QList<QAbstractButton*> buttons = m_group->buttons();
    const auto found =
        std::find_if(buttons.begin(), buttons.end(), [&wanted](const QAbstractButton* button) {
            return static_cast<const RadioButtonWidget*>(button)->comparable() == wanted;
        });
    return found == buttons.end() ? nullptr : *found;
}

QVariant RadioButtonTabel::value() const
{
    const auto* checked = static_cast<const RadioButtonWidget*>(m_group->checkedButton());
    if (!checked)
        return {};
    if (protocolItem() && protocolItem()->valueType() == ValueType::Int)
        return checked->value().toInt();
    return checked->value();
}

QVariant RadioButtonTabel::heldValue() const
{
    const auto* checked = static_cast<const RadioButtonWidget*>(m_group->checkedButton());
    return checked ? checked->value() : QString();
}

void RadioButtonTabel::showValue(const QVariant& value)
{
    QAbstractButton* checked = m_group->checkedButton();
    if (QAbstractButton* button = findButton(value)) {
        button->setChecked(true);
        return;
    }
    if (!checked)
        return;
    // An exclusive group does not let go of its last checked button.
    m_group->setExclusive(false);
    checked->setChecked(false);
    m_group->setExclusive(true);
}

void RadioButtonTabel::sltBtnClicked(QAbstractButton*)
{
    announce();
}
