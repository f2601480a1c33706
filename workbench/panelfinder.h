#pragma once

#include <QList>
#include <QString>

class QAbstractButton;
class QLineEdit;
class QWidget;

/**
 * Finds the widgets of the rules window by the names and properties that they carry
 * (host/api/rowcontract.h), without knowing their classes. Everything is null or empty when there
 * is no such widget.
 */
class PanelFinder
{
public:
    explicit PanelFinder(QWidget* rulesWindow) : m_window(rulesWindow) {}

    static bool isPanel(const QWidget& widget);
    static bool isRow(const QWidget& widget);
    static bool isEntryButton(const QWidget& widget);

    QWidget* window() const { return m_window; }
    QList<QWidget*> panels() const;
    /// The panel of a scene, by its template's name; the selected one for an empty name.
    QWidget* panel(const QString& scene) const;
    /// A part of the panel by object name.
    QWidget* part(QWidget* panel, const QString& name) const;
    /// A shown button of the panel, by its text.
    QAbstractButton* buttonByText(QWidget* panel, const QString& text) const;
    /// The buttons of the panel's entries, or of the current entry's children, in their order.
    QList<QAbstractButton*> entryButtons(QWidget* panel, bool children) const;
    /// The check box that enables the entry of @p button; null when it carries none.
    QAbstractButton* enableBox(QWidget* panel, const QAbstractButton& button) const;
    /// The attribute row of the panel that edits @p key.
    QWidget* row(QWidget* panel, const QString& key) const;
    /// The edit of a row that was typed into and is not finished.
    QLineEdit* unfinishedEdit() const;
    /// Leaves it as pressing elsewhere does, whether or not the window has the focus just then, and
    /// ends what else is in progress: a corner that keys move.
    void finishEdit() const;
    /// A button of the window itself, by object name.
    QAbstractButton* windowButton(const QString& name) const;
    /// The line of notices beside the window's buttons, in full.
    QString notices() const;
    /// Why the window does not do what it was asked for last.
    QString refusal() const;

private:
    QString shownText(const char* label) const;

    QWidget* m_window; ///< not owned
};
