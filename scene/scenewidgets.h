#pragma once

#include <QCoreApplication>

class ControlItemWidgetTabel;
class QPushButton;
class QWidget;
class RuleItemWidgetTabel;
class RuleWidgetTabel;
class SceneTitleBar;
class TitleLabel;
class WidgetTabel;

/**
 * The widgets that every scene's panel is made of. All are children of the panel; those between
 * title bar and mask are in its table, top to bottom in this order.
 */
struct SceneWidgets {
    Q_DECLARE_TR_FUNCTIONS(SceneWidgets)

public:
    explicit SceneWidgets(WidgetTabel* panel);

    SceneTitleBar* titleBar;
    RuleWidgetTabel* ruleFucBar;
    RuleItemWidgetTabel* drawItems;
    WidgetTabel* actions;
    TitleLabel* hint;
    RuleWidgetTabel* childFucBar;
    RuleItemWidgetTabel* childDrawItems;
    ControlItemWidgetTabel* controls;
    QWidget* mask; ///< covers a section that is neither selected nor folded
    QPushButton* redrawButton;
    QPushButton* deleteButton;

    /// Tells in tool tips and to readers of the screen what Redraw and Delete act on.
    void nameActions(const QString& target) const;
    /// Gives the hint the height that its font asks.
    void fitHint() const;

private:
    void nameWidgets();
    static void buildBar(WidgetTabel* bar, const QSize& buttonSize);
    QPushButton* buildAction(const QString& name, const QString& text);
    void fillPanel(WidgetTabel* panel);
};
