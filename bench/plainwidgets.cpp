#include "bench/plainwidgets.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <optional>

namespace
{

using Kind = PanelRecipe::Kind;

std::optional<PanelRecipe::Part> partOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return PanelRecipe::Part{Kind::Label, label->text()};
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        return PanelRecipe::Part{Kind::Edit, edit->text()};
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (!button)
        return {};
    if (qobject_cast<const QCheckBox*>(button))
        return PanelRecipe::Part{Kind::CheckBox, button->text()};
    if (qobject_cast<const QRadioButton*>(button))
        return PanelRecipe::Part{Kind::RadioButton, button->text()};
    return PanelRecipe::Part{Kind::PushButton, button->text()};
}

bool isRow(const QWidget& widget)
{
    return widget.parentWidget()->objectName() == QLatin1String("controls");
}

} // namespace

PanelRecipe::PanelRecipe(const QWidget& panel)
{
    Line line;
    add(panel, line);
}

void PanelRecipe::add(const QWidget& widget, Line& line)
{
    for (const QObject* child : widget.children()) {
        const auto* part = qobject_cast<const QWidget*>(child);
        if (!part || part->isHidden())
            continue;
        if (const auto made = partOf(*part))
            line.push_back(*made);
        else
            add(*part, line);
        // Outside of the attributes' rows every widget has a line of its own.
        if (isRow(*part) || (!line.empty() && !widget.inherits("ControlTabel") &&
                             !part->parentWidget()->parentWidget()->inherits("ControlTabel"))) {
            m_lines.push_back(line);
            line.clear();
        }
    }
}

PlainWidgets::PlainWidgets(const PanelRecipe& recipe)
{
    m_view.resize(335, 800);
    m_view.setWidgetResizable(true);
    auto* content = new QWidget;
    auto* form = new QFormLayout(content);
    for (const PanelRecipe::Line& line : recipe.lines()) {
        if (line.size() == 1)
            form->addRow(make(line[0]));
        else if (line.size() > 1)
            form->addRow(make(line[0]), makeField(line, 1));
    }
    m_view.setWidget(content);
    m_view.show();
    QCoreApplication::processEvents();
}

QWidget* PlainWidgets::make(const PanelRecipe::Part& part)
{
    switch (part.kind) {
    case Kind::Label:
        return new QLabel(part.text);
    case Kind::Edit:
        m_edits.push_back(new QLineEdit(part.text));
        return m_edits.back();
    case Kind::CheckBox:
        m_buttons.push_back(new QCheckBox(part.text));
        break;
    case Kind::RadioButton:
        m_buttons.push_back(new QRadioButton(part.text));
        break;
    case Kind::PushButton:
        m_buttons.push_back(new QPushButton(part.text));
        m_buttons.back()->setCheckable(true);
        break;
    }
    return m_buttons.back();
}

QWidget* PlainWidgets::makeField(const PanelRecipe::Line& line, std::size_t first)
{
    if (line.size() == first + 1)
        return make(line[first]);
    auto* field = new QWidget;
    auto* layout = new QHBoxLayout(field);
    layout->setContentsMargins({});
    for (std::size_t i = first; i < line.size(); ++i)
        layout->addWidget(make(line[i]));
    return field;
}
