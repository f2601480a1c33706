#pragma once

#include "scene/scenewidgets.h"
#include "tabel/widgettabel.h"

#include <QPointer>

/**
 * A section of the side panel as a widget: it folds by its title bar, and is covered by a mask
 * until it is selected. It knows nothing of what it shows.
 */
class SceneSection : public WidgetTabel
{
    Q_OBJECT
    Q_PROPERTY(bool folded READ getFold)

public:
    explicit SceneSection(QWidget* parent = nullptr);
    ~SceneSection() override;

    void relayout(int x, int y) override;

    /// Makes this the section whose canvas is worked on.
    virtual void setSelected(bool selected);
    bool getSelected() const { return m_selected; }
    /// In select mode entries can be picked and enabled, nothing else. Set before the data.
    virtual void setSelectMode(bool on);
    bool getSelectMode() const { return m_selectMode; }

    void setFold(bool folded);
    bool getFold() const { return m_folded; }
    /// Commits an edit in progress, or restores the old value where its text is refused.
    void finishEdits();
    /// Says again what works for the figure that is being drawn, and what the actions act on.
    void showHint();
    /// What that is; empty where nothing works.
    virtual QString hintText() const = 0;

signals:
    /// The operator wants to work on this section.
    void sgnTrySelectedlScene();
    /// The focus came into a section that is not selected.
    void sgnEntered();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    /// Shows what the section's contents call for, and lays it out.
    virtual void checkLayout();
    /// The name of what the action buttons act on; empty for nothing.
    virtual QString actedOn() const = 0;
    /// Whether there is an entry whose attributes can be shown.
    virtual bool hasCurrentEntry() const = 0;

    /// Makes the focus go through the widgets from top to bottom, those made later included.
    void orderFocus();
    /// Takes the focus from a widget in @p part, which is about to be disabled or hidden. False
    /// when whoever heard of it has deleted the section.
    bool takeFocusFrom(const QWidget& part);

    /// The operator works on this section. False as takeFocusFrom().
    bool becomeSelected();

    const SceneWidgets& widgets() const { return m_widgets; }

private:
    void updateMask();
    void updateContentWidgets();
    void focusMoved(const QWidget* old, const QWidget* now);
    /// Takes the focus out of the section. False as takeFocusFrom().
    bool dropFocus();

    SceneWidgets m_widgets;
    QPointer<const QWidget> m_focused; ///< of the whole process; null once it was deleted
    bool m_folded = false;
    bool m_selected = false;
    bool m_selectMode = false;
};
