#include "tabel/radiobuttonwidget.h"

#include "Protocol/enumoption.h"
#include "tabel/optionbox.h"

#include <QStyleOptionButton>
#include <QStylePainter>

RadioButtonWidget::RadioButtonWidget(const EnumOption& option, QWidget* parent)
    : QRadioButton(parent), m_value(option.value)
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
