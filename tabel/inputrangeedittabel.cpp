#include "tabel/inputrangeedittabel.h"

#include "Protocol/ruleprotocolitem.h"
#include "Protocol/unseenrows.h"
#include "tabel/inputrangeedit.h"
#include "tabel/numbertip.h"

#include <limits>

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
    const RuleProtocolItem* const item = protocolItem();
    setTip(item ? NumberTip::of(*item) : QString());
    // Without a range of its own no number is negative, as -1 stands for none.
    const QVariant bottom = item ? item->rangeMinimum() : QVariant();
    const QVariant top = item ? item->rangeMaximum() : QVariant();
    m_edit->setStepRange(bottom.isValid() ? bottom.toInt() : 0,
                         top.isValid() ? top.toInt() : std::numeric_limits<int>::max());
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
    m_edit->setRange(UnseenRows::shownPair(value), false);
}

void InputRangeEditTabel::finishEdit()
{
    m_edit->finishEdits();
}
