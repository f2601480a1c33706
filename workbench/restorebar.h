#pragma once

#include <QFrame>

class QLabel;

/**
 * Asks, without stopping anybody, what is to become of work that a crash left behind. It lies over
 * the top of a widget and moves nothing: what is drawn later keeps its place.
 */
class RestoreBar : public QFrame
{
    Q_OBJECT

public:
    /// @p over is the widget to lie over; the bar is a child of its window.
    explicit RestoreBar(QWidget* over);

    /// Shows itself with @p text.
    void ask(const QString& text);

signals:
    void sgnRestore();
    void sgnDiscard();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();

    QWidget* m_over; ///< not owned
    QLabel* m_text;
};
