#pragma once

#include <QLineEdit>

/**
 * The line edit of rows. Left with text that its validator refuses and cannot mend, it shows what
 * it showed before and announces nothing; left as it was, it announces nothing either.
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

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool mend();
    bool isUntouchedWith(const QString& text) const;
    void leaveUntouched(QFocusEvent* event);

    QString m_value;
};
