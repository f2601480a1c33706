#pragma once

#include <QPointer>

class WidgetTabel;

/// While it lives, a table does not lay out; it does so once at the end if it was asked to.
class LayoutPause
{
public:
    explicit LayoutPause(WidgetTabel* table);
    ~LayoutPause();
    LayoutPause(const LayoutPause&) = delete;
    LayoutPause& operator=(const LayoutPause&) = delete;

private:
    QPointer<WidgetTabel> m_table;
};
