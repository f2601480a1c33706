#pragma once

#include "tabel/controltabel.h"

class InputBoxWidget;
class QValidator;

/// Row with a line edit for a number or a text.
class InputBoxTabel : public ControlTabel
{
    Q_OBJECT

public:
    explicit InputBoxTabel(QWidget* parent = nullptr);

    void init() override;
    void setValue(const QVariant& value, bool emitChange) override;
    /// The text as the item's value type; invalid while a number's edit is empty.
    QVariant value() const override;
    int rowKind() const override { return RowContract::Text; }
    QVariant heldValue() const override;
    void finishEdit() override;
    /// Only the edit is disabled; the caption stays readable.
    void setControlEnable(bool enable) override;

    /// @p validator stays the caller's unless the edit is its parent.
    void setValidator(const QValidator* validator);
    void setMaxLength(int length);

private:
    bool isForNumbers() const;
    void textEdited(const QString& text);
    void editingFinished();
    void finishInt(const QString& text);
    void finishFloat(const QString& text);
    QValidator* createIntValidator() const;
    QValidator* createFloatValidator() const;

    InputBoxWidget* m_box;
};
