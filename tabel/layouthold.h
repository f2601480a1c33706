#pragma once

#include <QPointer>

class WidgetTabel;

/// While it lives, a table does not lay out; it does so once at the end if it was asked to.
class LayoutHold
{
public:
    explicit LayoutHold(WidgetTabel* table);
    ~LayoutHold();
    LayoutHold(const LayoutHold&) = delete;
    LayoutHold& operator=(const LayoutHold&) = delete;

private:
    QPointer<WidgetTabel> m_table;
};
