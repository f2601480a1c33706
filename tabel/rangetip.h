#pragma once

#include "tabel/titlelabel.h"

#include <QList>
#include <QPointer>

class ControlTabel;

/**
 * Tells beside the row that has the focus what the row takes, as the range of a number. It lies
 * over the rows without being one of them, goes with its row when that moves, and hides with it.
 */
class RangeTip : public TitleLabel
{
    Q_OBJECT

public:
    /// Of the rows that are seen in @p view, which becomes the owner.
    explicit RangeTip(QWidget* view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QWidget* focused);
    void place();

    QPointer<QWidget> m_editor;         ///< that has the focus; null in rows that take anything
    QList<QPointer<QWidget>> m_watched; ///< whose moves move the editor
};
