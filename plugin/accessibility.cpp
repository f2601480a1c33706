#include "plugin/accessibility.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

#include <algorithm>
#include <iterator>

namespace IntelligentRulesUI
{

namespace
{

struct ClassRole {
    const char* className;
    QAccessible::Role role;
};

constexpr char kTitleBar[] = "SceneTitleBar";

constexpr ClassRole kRoles[] = {
    {kTitleBar, QAccessible::Button},
    {"DrawItemButton", QAccessible::RadioButton}, // one of them is current
    {"SceneSection", QAccessible::Grouping},
    {"ControlTabel", QAccessible::Grouping},
    {"QRtspVideoWnd", QAccessible::Canvas},
};

class RoleInterface : public QAccessibleWidget
{
public:
    RoleInterface(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (const QAbstractButton* const pressed = button()) {
            state.checkable = pressed->isCheckable();
            state.checked = pressed->isChecked();
        }
        if (isTitleBar()) {
            const bool isFolded = widget()->property("bFold").toBool();
            state.expandable = true;
            state.collapsed = isFolded;
            state.expanded = !isFolded;
        }
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled() && (button() || isTitleBar()))
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (!widget()->isEnabled())
            return;
        else if (button())
            button()->click();
        else if (isTitleBar())
            QMetaObject::invokeMethod(widget(), "sgnPressed");
    }

private:
    QAbstractButton* button() const { return qobject_cast<QAbstractButton*>(widget()); }
    bool isTitleBar() const { return widget()->inherits(kTitleBar); }
};

/// Qt asks for the class of a widget first, then for those it derives from.
QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    const auto found =
        std::find_if(std::begin(kRoles), std::end(kRoles), [&className](const ClassRole& known) {
            return className == QLatin1String(known.className);
        });
    auto* const widget = qobject_cast<QWidget*>(object);
    return widget && found != std::end(kRoles) ? new RoleInterface(widget, found->role) : nullptr;
}

} // namespace

void Accessibility::start()
{
    QAccessible::removeFactory(&makeInterface);
    QAccessible::installFactory(&makeInterface);
}

void Accessibility::end()
{
    QAccessible::removeFactory(&makeInterface);
}

} // namespace IntelligentRulesUI
