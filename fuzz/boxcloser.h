#pragma once

#include <QObject>

/// Answers every message box that opens while it lives with one of its buttons, by turns.
class BoxCloser : public QObject
{
public:
    BoxCloser();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int m_boxes = 0;
};
