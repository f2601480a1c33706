#include "scene/faultmarks.h"

#include "Protocol/checkfault.h"
#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "scene/scenewidgets.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"
#include "tabel/drawfucbutton.h"
#include "tabel/drawitembutton.h"
#include "tabel/ruleitemwidgettabel.h"
#include "tabel/rulewidgettabel.h"

#include <QLineEdit>

#include <algorithm>

namespace
{

/// The first shown row of that name; null when there is none.
ControlTabel* rowOf(const SceneWidgets& widgets, const QString& key)
{
    const auto& rows = widgets.controls->controls();
    const auto found = std::find_if(rows.begin(), rows.end(), [&key](const ControlTabel* row) {
        return !key.isEmpty() && row->objectName() == key && row->isRowVisible();
    });
    return found == rows.end() ? nullptr : *found;
}

/// Of two that are compared the first, if it has a row.
ControlTabel* rowOf(const SceneWidgets& widgets, const CheckFault& fault)
{
    ControlTabel* const row = rowOf(widgets, fault.key);
    return row ? row : rowOf(widgets, fault.comparedKey);
}

bool isUsable(const QWidget* widget)
{
    return widget && widget->isEnabled() && widget->isVisible();
}

/// What the row is edited with: an edit that is empty, an option that is chosen, or the first.
QWidget* editorOf(const ControlTabel& row)
{
    QWidget* first = nullptr;
    for (QWidget* widget : row.findChildren<QWidget*>()) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !isUsable(widget))
            continue;
        const auto* const edit = qobject_cast<const QLineEdit*>(widget);
        const auto* const option = qobject_cast<const QAbstractButton*>(widget);
        if ((edit && edit->text().isEmpty()) || (option && option->isChecked()))
            return widget;
        if (!first)
            first = widget;
    }
    return first;
}

/// The button that draws figures of the template's item @p key; null when there is none.
DrawFucButton* adderOf(const RuleWidgetTabel& bar, const DataTemplate& dataTemplate,
                       const QString& key)
{
    const auto& buttons = bar.buttons();
    const auto found = std::find_if(buttons.begin(), buttons.end(), [&](const auto* button) {
        const RuleProtocolItem* const first = dataTemplate.figureItem(button->drawType());
        return button->itemKey().isEmpty() ? first && first->key() == key
                                           : button->itemKey() == key;
    });
    return found == buttons.end() ? nullptr : *found;
}

QWidget* usable(QWidget* widget)
{
    return isUsable(widget) ? widget : nullptr;
}

} // namespace

void FaultMarks::show(const SceneWidgets& widgets, const CheckFault* fault, int shownEntry)
{
    const QString message = fault ? fault->message : QString();
    const bool isShown = fault && fault->dataId == shownEntry;
    const ControlTabel* const faulty = isShown ? rowOf(widgets, *fault) : nullptr;
    for (ControlTabel* row : widgets.controls->controls())
        row->setFault(faulty && row == faulty ? message : QString());
    for (DrawItemButton* button : widgets.drawItems->buttons())
        button->setFault(fault && button->dataId() == fault->dataId ? message : QString());
    for (DrawItemButton* button : widgets.childDrawItems->buttons())
        button->setFault(fault && button->id() == fault->itemId ? message : QString());
}

QWidget* FaultMarks::placeOf(const CheckFault& fault, const SceneWidgets& widgets,
                             const DataTemplate& dataTemplate)
{
    if (fault.dataId == 0)
        return usable(widgets.ruleFucBar->buttons().value(0));
    const ControlTabel* const row = rowOf(widgets, fault);
    if (QWidget* editor = row ? editorOf(*row) : nullptr)
        return editor;
    QWidget* child = widgets.childDrawItems->findButton(fault.itemId);
    if (fault.itemId == 0)
        child = adderOf(*widgets.childFucBar, dataTemplate, fault.key);
    return usable(child ? child : widgets.drawItems->findDataButton(fault.dataId));
}
