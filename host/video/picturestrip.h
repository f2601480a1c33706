#pragma once

#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class QToolButton;

namespace UICommonMdl
{

struct PictureStatistics;

/**
 * The tools over a pane's picture: freeze, snapshot, statistics. It shows itself in the picture's
 * upper right corner when the pointer rests over the pane, and gets out of the way of presses.
 * A right press on it goes on to the pane, and while the pane's dynamic property "drawing" is true,
 * every press does.
 */
class PictureStrip : public QWidget
{
    Q_OBJECT

public:
    using Statistics = std::function<PictureStatistics()>;

    /// The pane becomes the owner.
    PictureStrip(QWidget* pane, Statistics statistics);

    /// Where the picture is in the pane; without one there is no strip.
    void setPictureRect(const QRect& rect);
    void setFrozen(bool frozen);

signals:
    void sgnFreeze(bool freeze);
    void sgnSnapshot();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QToolButton* addButton(const QString& name, const QString& text, const QString& hint);
    void place();
    void showRested();
    void showStatistics(bool shown);
    void refreshStatistics();

    Statistics m_statistics;
    QRect m_picture;
    QTimer m_rest;
    QTimer m_refresh;
    QToolButton* m_freeze;
    QLabel* m_text; ///< the statistics; stays when the strip goes
};

} // namespace UICommonMdl
