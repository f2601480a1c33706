#include "tabel/rulewidgettabel.h"

#include "tabel/drawfucbutton.h"

void RuleWidgetTabel::addButton(DrawFucButton* button)
{
    if (!button || contains(button))
        return;
    m_buttons.append(button);
    button->setEnabled(getControlEnable());
    connect(button, &DrawFucButton::sgnClicked, this, &RuleWidgetTabel::sgnBtnClicked);
    addWidget(button, true);
}

QList<BaseDrawType> RuleWidgetTabel::drawTypes() const
{
    QList<BaseDrawType> types;
    for (const DrawFucButton* button : m_buttons)
        types.append(button->drawType());
    return types;
}

void RuleWidgetTabel::forgetWidget(const QObject* child)
{
    forgetIn(m_buttons, child);
    WidgetTabel::forgetWidget(child);
}
