#include "tabel/radiobuttontabel.h"

#include "Protocol/ruleprotocolitem.h"
#include "tabel/radiobuttonwidget.h"

#include <QButtonGroup>
#include <algorithm>

RadioButtonTabel::RadioButtonTabel(QWidget* parent)
    : OptionsTabel(parent), m_group(new QButtonGroup(this))
{
    connect(m_group, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &RadioButtonTabel::sltBtnClicked);
}

void RadioButtonTabel::init()
{
    ControlTabel::init();
    for (QAbstractButton* old : m_group->buttons())
        m_group->removeButton(old);
    deleteAll();
    const auto options = protocolItem() ? protocolItem()->enumeration() : QList<EnumOption>();
    for (const EnumOption& option : options) {
        auto* button = new RadioButtonWidget(option, this);
        m_group->addButton(button);
        button->show();
        addWidget(button, false);
    }
    setValue(itemValue(), false);
    relayout(0, 0);
}

void RadioButtonTabel::setValue(const QVariant& value, bool emitChange)
{
    const QString wanted = value.toString();
    const QList<QAbstractButton*> buttons = m_group->buttons();
    const auto found = std::find_if(
        buttons.begin(), buttons.end(), [&value, &wanted](const QAbstractButton* button) {
            const auto* radio = static_cast<const RadioButtonWidget*>(button);
            return value.isValid() && radio->value() == wanted;
        });
    if (found != buttons.end())
        (*found)->setChecked(true);
    else if (emitChange)
        announce();
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

void RadioButtonTabel::reset()
{
    // An exclusive group does not let go of its last checked button.
    m_group->setExclusive(false);
    for (QAbstractButton* button : m_group->buttons())
        button->setChecked(false);
    m_group->setExclusive(true);
}

void RadioButtonTabel::sltBtnClicked(QAbstractButton*)
{
    announce();
}
