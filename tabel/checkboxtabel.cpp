#include "tabel/checkboxtabel.h"

#include "Protocol/ruleprotocolitem.h"
#include "tabel/checkboxwidget.h"

#include <algorithm>

void CheckBoxTabel::init()
{
    m_boxes.clear();
    deleteAll();
    const auto options = protocolItem() ? protocolItem()->enumeration() : QList<EnumOption>();
    for (const EnumOption& option : options) {
        auto* box = new CheckBoxWidget(option, this);
        connect(box, &CheckBoxWidget::clicked, this, [this, box] { boxClicked(box); });
        box->show();
        addWidget(box, false);
        m_boxes.append(box);
    }
    ControlTabel::init();
}

void CheckBoxTabel::setValue(const QVariant& value, bool emitChange)
{
    QStringList checked = value.toStringList();
    std::sort(checked.begin(), checked.end());
    for (CheckBoxWidget* box : qAsConst(m_boxes))
        box->setChecked(std::binary_search(checked.cbegin(), checked.cend(), box->value()));
    if (emitChange)
        announce();
}

QVariant CheckBoxTabel::value() const
{
    QStringList checked;
    for (const CheckBoxWidget* box : m_boxes) {
        if (box->isChecked())
            checked.append(box->value());
    }
    return checked.isEmpty() ? QVariant() : QVariant(checked);
}

CheckBoxWidget* CheckBoxTabel::exclusiveBox() const
{
    const auto found = std::find_if(m_boxes.rbegin(), m_boxes.rend(),
                                    [](const CheckBoxWidget* box) { return box->isExclusive(); });
    return found == m_boxes.rend() ? nullptr : *found;
}

void CheckBoxTabel::boxClicked(CheckBoxWidget* clicked)
{
    CheckBoxWidget* exclusive = exclusiveBox();
    const bool isAnyChecked = std::any_of(
        m_boxes.begin(), m_boxes.end(), [](const CheckBoxWidget* box) { return box->isChecked(); });
    if (!isAnyChecked) {
        clicked->setChecked(true);
    } else if (exclusive && exclusive != clicked) {
        exclusive->setChecked(false);
    } else if (exclusive && exclusive->isChecked()) {
        for (CheckBoxWidget* box : qAsConst(m_boxes))
            box->setChecked(box == exclusive);
    }
    announce();
}
