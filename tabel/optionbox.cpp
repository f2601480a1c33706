#include "tabel/optionbox.h"

#include "Protocol/ruleprotocolitem.h"
#include "host/api/rowcontract.h"
#include "tabel/plaintext.h"

#include <QAbstractButton>
#include <QStyle>
#include <QStyleOptionButton>

void OptionBox::bind(QAbstractButton& box, const EnumOption& option)
{
    box.setText(PlainText::button(option.text));
    box.setToolTip(
        PlainText::toolTip(option.description.isEmpty() ? option.text : option.description));
    box.setProperty(RowContract::kOption, option.value);
}

void OptionBox::elide(const QAbstractButton& box, bool isRadio, QStyleOptionButton& option)
{
    const auto contents = isRadio ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents;
    const int width = box.style()->subElementRect(contents, &option, &box).width();
    option.text =
        box.fontMetrics().elidedText(option.text, Qt::ElideRight, width, Qt::TextShowMnemonic);
}
