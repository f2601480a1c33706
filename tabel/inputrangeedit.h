#pragma once

#include <QSize>
#include <QWidget>

class QLabel;
class RowEdit;

/// A minimum and a maximum edit that limit each other. -1 on either side is "unset", shown empty.
class InputRangeEdit : public QWidget
{
    Q_OBJECT

public:
    explicit InputRangeEdit(QWidget* parent = nullptr);

    /// Width is the minimum, height the maximum.
    QSize range() const { return m_range; }
    void setMiniValue(int value, bool emitChange);
    void setMaxValue(int value, bool emitChange);
    /// Sets both, then announces once if @p emitChange, changed or not.
    void setRange(const QSize& range, bool emitChange);
    /// What the arrow keys reach; what is typed may be anything that is not negative.
    void setStepRange(int bottom, int top);
    /// Ends edits in progress as leaving them does.
    void finishEdits();
    /// Whether one of the edits refused text and the operator did nothing about it yet.
    bool isRefusing() const;

signals:
    void sgnRangeValueChange();
    void sgnRefusalChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Announces the change of @p setter's if @p emitChange.
    void store(const QSize& range, const char* setter, bool emitChange);
    void limitMaximumEdit(int minimum);
    void limitMinimumEdit(int maximum);
    void minimumEdited(const QString& text);

    RowEdit* m_minimum;
    RowEdit* m_maximum;
    QLabel* m_dash;
    QSize m_range{-1, -1};
};
