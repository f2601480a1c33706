#pragma once

#include <QLineEdit>
#include <limits>
#include <optional>

/**
 * The line edit of rows. Left with text that its validator refuses and cannot mend, it shows what
 * it showed before and announces nothing; left as it was, it announces nothing either.
 *
 * An edit with a validator for numbers takes typed and pasted text as what it was meant for: see
 * NumberEntry. What it cannot take is refused rather than left out of a number that then is
 * another one. In one for whole numbers the arrows up and down count, each time as if the number
 * were typed and the edit ended.
 */
class RowEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value)

public:
    explicit RowEdit(QWidget* parent = nullptr);

    /// Shows @p text as the value that an abandoned edit falls back to. An edit that nobody
    /// touched since it showed that text is left alone. Of a text that is too long to be edited
    /// here the beginning shows, and nobody can change it.
    void showValue(const QString& text);
    /// The text typed, or the one too long to be edited.
    QString value() const;
    /// Ends an edit in progress the way leaving does; nothing when there is none.
    void finishEdit();
    /// As setValidator(), and deletes the validator that this edit owns as its parent.
    void replaceValidator(const QValidator* newValidator);
    /// What the arrow keys reach in an edit for whole numbers, besides what its validator allows.
    void setStepRange(int bottom, int top);
    /// Whether text was refused and the operator did nothing about it yet.
    bool isRefusing() const { return m_refusal != Refusal::None; }

public slots:
    /// Hides QLineEdit's, which the context menu finds by its name, too.
    void paste();

signals:
    void sgnRefusalChanged();

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    enum class Refusal {
        None,
        Input, ///< and all that follows it, until a deletion or selection
        Text   ///< the whole text, which the edit cannot be ended with
    };

    bool isForNumbers() const;
    void enterPasted(const QString& text);
    void enter(const QString& typed);
    bool isStep(const QKeyEvent& event) const;
    void step(int by);
    std::optional<int> stepped(int by) const;
    void pressReturn(QKeyEvent* event);
    void pressEscape();
    bool becomesMinimum() const;
    void setRefusal(Refusal refusal);
    void sltTextChanged();
    void sltSelectionChanged();
    bool mend();
    bool isUntouchedWith(const QString& text) const;
    void leaveUntouched(QFocusEvent* event);

    QString m_value;
    Refusal m_refusal = Refusal::None;
    int m_stepBottom = std::numeric_limits<int>::min();
    int m_stepTop = std::numeric_limits<int>::max();
};
