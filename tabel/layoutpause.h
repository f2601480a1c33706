#pragma once

#include "tabel/widgettabel.h"

#include <QPointer>

/// While it lives, a table does not lay out; it does so once at the end if it was asked to.
class LayoutPause
{
public:
    explicit LayoutPause(WidgetTabel* table) : m_table(table) { table->pauseLayout(); }
    ~LayoutPause()
    {
        if (m_table)
            m_table->resumeLayout();
    }
    LayoutPause(const LayoutPause&) = delete;
    LayoutPause& operator=(const LayoutPause&) = delete;

private:
    QPointer<WidgetTabel> m_table;
};
