#include "tabel/controlfactory.h"

#include "Protocol/ruleprotocolitem.h"
#include "tabel/booltabel.h"
#include "tabel/checkboxtabel.h"
#include "tabel/inputboxtabel.h"
#include "tabel/inputrangeedittabel.h"
#include "tabel/radiobuttontabel.h"

#include <algorithm>
#include <iterator>

namespace
{

template<class Row>
ControlTabel* makeRow(QWidget* parent)
{
    return new Row(parent);
}

struct RowKind {
    FacadeType facade;
    ControlTabel* (*make)(QWidget*);
};

constexpr RowKind kRowKinds[] = {
    {FacadeType::InputBoxNumber, &makeRow<InputBoxTabel>},
    {FacadeType::CheckBox, &makeRow<CheckBoxTabel>},
    {FacadeType::RadioButton, &makeRow<RadioButtonTabel>},
    {FacadeType::Bool, &makeRow<BoolTabel>},
    {FacadeType::NumericalInterval, &makeRow<InputRangeEditTabel>},
};

} // namespace

ControlTabel* createControlTabel(RuleProtocolItem* item, QWidget* parent)
{
    if (!item)
        return nullptr;
    const auto kind =
        std::find_if(std::begin(kRowKinds), std::end(kRowKinds), [item](const RowKind& candidate) {
            return candidate.facade == item->facade();
        });
    if (kind == std::end(kRowKinds))
        return nullptr;
    ControlTabel* row = kind->make(parent);
    row->setObjectName(item->key());
    row->setProtocolItem(item);
    if (parent)
        row->show();
    return row;
}
