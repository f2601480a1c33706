#include "tabel/checkboxwidget.h"

#include "Protocol/ruleprotocolitem.h"
#include "tabel/optionbox.h"

#include <QStyleOptionButton>
#include <QStylePainter>

CheckBoxWidget::CheckBoxWidget(const EnumOption& option, QWidget* parent)
    : QCheckBox(parent), m_value(option.value), m_exclusive(option.isAll)
{
    OptionBox::bind(*this, option);
}

void CheckBoxWidget::paintEvent(QPaintEvent*)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    OptionBox::elide(*this, false, option);
    QStylePainter(this).drawControl(QStyle::CE_CheckBox, option);
}
