#include "tabel/radiobuttonwidget.h"

#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"
#include "tabel/optionbox.h"

#include <QStyleOptionButton>
#include <QStylePainter>

RadioButtonWidget::RadioButtonWidget(const EnumOption& option, ValueType type, QWidget* parent)
    : QRadioButton(parent),
      m_value(option.value),
      m_comparable(ComparableText::of(option.value, type))
{
    OptionBox::bind(*this, option);
}

void RadioButtonWidget::paintEvent(QPaintEvent*)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    OptionBox::elide(*this, true, option);
    QStylePainter(this).drawControl(QStyle::CE_RadioButton, option);
}
