#include "tabel/optionbox.h"

#include "host/api/rowcontract.h"
#include "tabel/plaintext.h"

#include <QAbstractButton>

void bindOption(QAbstractButton& box, const EnumOption& option)
{
    box.setText(PlainText::button(option.text));
    box.setToolTip(
        PlainText::toolTip(option.description.isEmpty() ? option.text : option.description));
    box.setProperty(RowContract::kOption, option.value);
}
