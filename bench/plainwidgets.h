#pragma once

#include <QScrollArea>
#include <QString>
#include <vector>

class QAbstractButton;
class QLineEdit;

/// What a panel consists of, to be made of Qt's own widgets.
class PanelRecipe
{
public:
    enum class Kind { Label, Edit, CheckBox, RadioButton, PushButton };
    struct Part {
        Kind kind;
        QString text;
    };
    using Line = std::vector<Part>;

    /// The labels, edits and buttons of @p panel; those of one row in one line.
    explicit PanelRecipe(const QWidget& panel);

    const std::vector<Line>& lines() const { return m_lines; }

private:
    void add(const QWidget& widget, Line& line);

    std::vector<Line> m_lines;
};

/// The same widgets in a form layout, in a scroll area that is shown.
class PlainWidgets
{
public:
    explicit PlainWidgets(const PanelRecipe& recipe);

    const std::vector<QLineEdit*>& edits() const { return m_edits; }
    /// Check boxes, radio buttons and push buttons; all can be checked.
    const std::vector<QAbstractButton*>& buttons() const { return m_buttons; }

private:
    QWidget* make(const PanelRecipe::Part& part);
    QWidget* makeField(const PanelRecipe::Line& line, std::size_t first);

    QScrollArea m_view;
    std::vector<QLineEdit*> m_edits;
    std::vector<QAbstractButton*> m_buttons;
};
