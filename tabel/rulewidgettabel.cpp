#include "tabel/rulewidgettabel.h"

#include "tabel/drawfucbutton.h"

#include <algorithm>

RuleWidgetTabel::RuleWidgetTabel(QWidget* parent) : WidgetTabel(parent) {}

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

void RuleWidgetTabel::removeWidget(QWidget* widget)
{
    if (contains(widget))
        widget->disconnect(this);
    WidgetTabel::removeWidget(widget);
}

void RuleWidgetTabel::forgetWidget(const QObject* child)
{
    const auto button = std::find(m_buttons.begin(), m_buttons.end(), child);
    if (button != m_buttons.end())
        m_buttons.erase(button);
    WidgetTabel::forgetWidget(child);
}
