#include "workbench/menuhand.h"

#include "workbench/inputevents.h"
#include "workbench/operatorhand.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QTextDocumentFragment>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(MenuHand)
};

/// Without the key behind it.
QString nameOf(const QAction* action)
{
    return action->text().section(QLatin1Char('\t'), 0, 0);
}

QString pick(QMenu* menu, const QString& text)
{
    const QList<QAction*> actions = menu->actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&text](const QAction* action) {
        return !action->isSeparator() && nameOf(action) == text;
    });
    if (found == actions.end())
        return Texts::tr("there is no \"%1\" in the menu").arg(text);
    if (!(*found)->isEnabled())
        return Texts::tr("it is disabled: %1")
            .arg(QTextDocumentFragment::fromHtml((*found)->toolTip()).toPlainText());
    InputEvents::click(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(*found).center());
    return {};
}

} // namespace

QString MenuHand::choose(QWidget* button, const QString& text)
{
    OperatorHand::scrollIntoView(button);
    const QPoint middle = button ? button->rect().center() : QPoint();
    const QString why = OperatorHand::clickAt(button, middle, Qt::RightButton);
    if (!why.isEmpty())
        return why;
    QContextMenuEvent wanted(QContextMenuEvent::Mouse, middle, button->mapToGlobal(middle));
    QApplication::sendEvent(button, &wanted);
    const QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        return Texts::tr("it has no menu now");
    const QString whyNot = pick(menu, text);
    if (menu)
        menu->close();
    return whyNot;
}
