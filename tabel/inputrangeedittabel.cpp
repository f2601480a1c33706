#include "tabel/inputrangeedittabel.h"

#include "tabel/inputrangeedit.h"
#include "tabel/numbertip.h"

InputRangeEditTabel::InputRangeEditTabel(QWidget* parent)
    : ControlTabel(parent), m_edit(new InputRangeEdit(this))
{
    m_edit->show();
    addWidget(m_edit, false);
    connect(m_edit, &InputRangeEdit::sgnRangeValueChange, this, [this] { announce(); });
    connect(m_edit, &InputRangeEdit::sgnRefusalChanged, this,
            [this] { setRefusing(m_edit->isRefusing()); });
}

void InputRangeEditTabel::init()
{
    setTip(protocolItem() ? NumberTip::of(*protocolItem()) : QString());
    ControlTabel::init();
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
