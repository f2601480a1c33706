#include "workbench/panelfinder.h"

#include "host/api/rowcontract.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVariant>

#include <algorithm>

namespace
{

/// Whether @p widget is what only widgets with the property @p name are.
bool has(const QWidget& widget, const char* name)
{
    return widget.property(name).isValid();
}

bool comesBefore(const QWidget* a, const QWidget* b)
{
    return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x();
}

} // namespace

bool PanelFinder::isPanel(const QWidget& widget)
{
    return has(widget, RowContract::kFolded);
}

bool PanelFinder::isRow(const QWidget& widget)
{
    return has(widget, RowContract::kKind);
}

bool PanelFinder::isEntryButton(const QWidget& widget)
{
    return has(widget, RowContract::kEntryId);
}

QList<QWidget*> PanelFinder::panels() const
{
    QList<QWidget*> result = m_window->findChildren<QWidget*>();
    result.erase(std::remove_if(result.begin(), result.end(),
                                [](const QWidget* widget) { return !isPanel(*widget); }),
                 result.end());
    return result;
}

QWidget* PanelFinder::panel(const QString& scene) const
{
    const QList<QWidget*> all = panels();
    const auto found = std::find_if(all.begin(), all.end(), [&scene](const QWidget* panel) {
        return scene.isEmpty() ? panel->property(RowContract::kSelected).toBool()
                               : panel->objectName() == scene;
    });
    return found == all.end() ? nullptr : *found;
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
    const char* const name = children ? RowContract::kFigures : RowContract::kEntries;
    if (const QWidget* table = part(panel, QString::fromLatin1(name))) {
        for (QAbstractButton* button : table->findChildren<QAbstractButton*>()) {
            if (isEntryButton(*button) && !button->isHidden())
                result.append(button);
        }
    }
    std::sort(result.begin(), result.end(), comesBefore);
    return result;
}

QAbstractButton* PanelFinder::enableBox(QWidget* panel, const QAbstractButton& button) const
{
    const auto boxes = panel->findChildren<QAbstractButton*>(
        QString::fromLatin1(RowContract::kEnable), Qt::FindChildrenRecursively);
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
        if (isRow(*widget))
            return widget;
    }
    return nullptr;
}

QLineEdit* PanelFinder::unfinishedEdit() const
{
    const auto edits = m_window->findChildren<QLineEdit*>();
    const auto found = std::find_if(edits.begin(), edits.end(),
                                    [](const QLineEdit* edit) { return edit->isModified(); });
    return found == edits.end() ? nullptr : *found;
}

void PanelFinder::finishEdit() const
{
    QFocusEvent leave(QEvent::FocusOut, Qt::MouseFocusReason);
    if (QLineEdit* const edit = unfinishedEdit())
        QCoreApplication::sendEvent(edit, &leave);
    QMetaObject::invokeMethod(m_window, RowContract::kFinish);
}

QAbstractButton* PanelFinder::windowButton(const QString& name) const
{
    const auto buttons = m_window->findChildren<QAbstractButton*>(name);
    const auto found = std::find_if(buttons.begin(), buttons.end(), [](const QWidget* button) {
        while (button && !isPanel(*button))
            button = button->parentWidget();
        return !button;
    });
    return found == buttons.end() ? nullptr : *found;
}

QString PanelFinder::notices() const
{
    return shownText(RowContract::kNotices);
}

QString PanelFinder::refusal() const
{
    return shownText(RowContract::kRefusal);
}

QString PanelFinder::shownText(const char* label) const
{
    const auto* shown = m_window->findChild<QLabel*>(QString::fromLatin1(label));
    return shown && !shown->isHidden() ? shown->text() : QString();
}
