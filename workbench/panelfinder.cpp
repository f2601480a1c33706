#include "workbench/panelfinder.h"

#include <QAbstractButton>
#include <QLabel>
#include <QVariant>

#include <algorithm>

namespace
{

constexpr char kPanelClass[] = "BaseTabelScene";
constexpr char kRowClass[] = "ControlTabel";
constexpr char kEntryButtonClass[] = "DrawItemButton";

bool comesBefore(const QWidget* a, const QWidget* b)
{
    return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x();
}

} // namespace

QWidget* PanelFinder::panel(const QString& scene) const
{
    for (QWidget* widget : m_window->findChildren<QWidget*>()) {
        const bool matches =
            scene.isEmpty() ? widget->property("selected").toBool() : widget->objectName() == scene;
        if (matches && widget->inherits(kPanelClass))
            return widget;
    }
    return nullptr;
}

QWidget* PanelFinder::part(QWidget* panel, const QString& name) const
{
    return panel ? panel->findChild<QWidget*>(name) : nullptr;
}

QAbstractButton* PanelFinder::buttonByText(QWidget* panel, const QString& text) const
{
    const auto buttons = panel->findChildren<QAbstractButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(), [&text](QAbstractButton* b) {
        return b->isVisible() && (b->text() == text || b->toolTip() == text);
    });
    return found == buttons.end() ? nullptr : *found;
}

QList<QAbstractButton*> PanelFinder::entryButtons(QWidget* panel, bool children) const
{
    QList<QAbstractButton*> result;
    const QString name = children ? QStringLiteral("childDrawItems") : QStringLiteral("drawItems");
    if (const QWidget* table = part(panel, name)) {
        for (QAbstractButton* button : table->findChildren<QAbstractButton*>()) {
            if (button->inherits(kEntryButtonClass) && !button->isHidden())
                result.append(button);
        }
    }
    std::sort(result.begin(), result.end(), comesBefore);
    return result;
}

QAbstractButton* PanelFinder::enableBox(QWidget* panel, const QAbstractButton& button) const
{
    const auto boxes = panel->findChildren<QAbstractButton*>(QStringLiteral("enable"),
                                                             Qt::FindChildrenRecursively);
    const auto found = std::find_if(boxes.begin(), boxes.end(), [&button](QAbstractButton* box) {
        const QPoint centre = box->mapTo(box->window(), box->rect().center());
        return !box->isHidden() && box != &button &&
               QRect(button.mapTo(button.window(), QPoint(-1, 0)), button.size()).contains(centre);
    });
    return found == boxes.end() ? nullptr : *found;
}

QWidget* PanelFinder::row(QWidget* panel, const QString& key) const
{
    for (QWidget* widget : panel->findChildren<QWidget*>(key)) {
        if (widget->inherits(kRowClass))
            return widget;
    }
    return nullptr;
}

QAbstractButton* PanelFinder::windowButton(const QString& name) const
{
    return m_window->findChild<QAbstractButton*>(name);
}

QString PanelFinder::notices() const
{
    const auto* label = m_window->findChild<QLabel*>(QStringLiteral("lblNotices"));
    return label && !label->isHidden() ? label->text() : QString();
}
