#pragma once

#include "draw/figuretypes.h"
#include "tabel/elidedbutton.h"

#include <QPointer>

class QCheckBox;

/**
 * Stands for one drawn figure, or for an entry without one. It may carry an enable check box,
 * which is a sibling of the button: it follows it, hides with it and goes with it.
 */
class DrawItemButton : public ElidedButton
{
    Q_OBJECT
    Q_PROPERTY(int entryId READ dataId CONSTANT)
    Q_PROPERTY(bool marked READ isMarked)
    Q_PROPERTY(bool emphasised READ isEmphasised)

public:
    /// @p id is the figure's item id, 0 without a figure; @p dataId the entry's.
    DrawItemButton(int id, int dataId, BaseDrawType type, QWidget* parent = nullptr);
    ~DrawItemButton() override;

    int id() const { return m_id; }
    int dataId() const { return m_dataId; }
    BaseDrawType drawType() const { return m_drawType; }

    /// Shows @p text, shortened where it is longer than five characters; the tool tip has it all.
    void setText(const QString& text);
    const QString& fullText() const { return m_fullText; }

    /// Marks the button while a save is refused for what it stands for, with @p message besides
    /// the text in its tool tip; an empty one takes the mark away.
    void setFault(const QString& message);
    bool isMarked() const { return !m_fault.isEmpty(); }

    /// Makes the button stand out while the pointer is over its figure.
    void setEmphasised(bool on);
    bool isEmphasised() const { return m_isEmphasised; }
    /// Whether the pointer is over the button, or the focus came to it by the keyboard.
    bool isPointed() const { return isEnabled() && (underMouse() || m_hasKeyFocus); }

    bool enabledState() const { return m_enabledState; }
    /// Announces nothing.
    void setEnabledState(bool on);
    void setEnableCheckBoxVisible(bool visible);

signals:
    /// The enable check box was clicked.
    void sgnEnableChanged(int dataId, bool on);
    /// The operator asks what can be done with it, at that place of the screen.
    void sgnMenuWanted(int dataId, const QPoint& place);
    /// isPointed() may be another one.
    void sgnPointed();

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    /// The keys that open a menu do so on each platform, whatever it makes of them itself.
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    /// A press never unchecks: the current button stays current.
    void nextCheckState() override;

private:
    void showTip();
    void createCheckBox();
    void nameCheckBox();
    void syncCheckBox();

    int m_id;
    int m_dataId;
    BaseDrawType m_drawType;
    QString m_fullText;
    QString m_fault;
    bool m_enabledState = true;
    bool m_carriesCheckBox = false;
    bool m_isEmphasised = false;
    bool m_hasKeyFocus = false;
    QPointer<QCheckBox> m_checkBox; ///< made when first asked for; the button's sibling
};
