#include "tabel/inputrangeedittabel.h"

#include "tabel/inputrangeedit.h"
#include "tabel/numbertip.h"

InputRangeEditTabel::InputRangeEditTabel(QWidget* parent)
    : ControlTabel(parent), m_edit(new InputRangeEdit(this))
{
    m_edit->show();
    addWidget(m_edit, false);
    connect(m_edit, &InputRangeEdit::sgnRangeValueChange, this, [this] { announce(); });
    connect(m_edit, &InputRangeEdit::sgnRefusalChanged, this, &InputRangeEditTabel::showRefusal);
}

void InputRangeEditTabel::showRefusal()
{
    const RuleProtocolItem* item = protocolItem();
    const bool isRefusing = item && m_edit->isRefusing();
    setRefusal(isRefusing ? NumberTip::refusal(NumberTip::of(*item)) : QString());
}

void InputRangeEditTabel::init()
{
    ControlTabel::init();
    setTip(protocolItem() ? NumberTip::of(*protocolItem()) : QString());
    setValue(itemValue(), false);
}

void InputRangeEditTabel::setValue(const QVariant& value, bool emitChange)
{
    if (value.type() == QVariant::Size)
        m_edit->setRange(value.toSize(), emitChange);
}

QVariant InputRangeEditTabel::value() const
{
    return m_edit->range();
}

void InputRangeEditTabel::showValue(const QVariant& value)
{
    m_edit->setRange(value.type() == QVariant::Size ? value.toSize() : QSize(-1, -1), false);
}

void InputRangeEditTabel::finishEdit()
{
    m_edit->finishEdits();
}
