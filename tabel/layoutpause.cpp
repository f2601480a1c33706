#include "tabel/layoutpause.h"

#include "tabel/widgettabel.h"

LayoutPause::LayoutPause(WidgetTabel* table) : m_table(table)
{
    if (m_table)
        m_table->pauseLayout();
}

LayoutPause::~LayoutPause()
{
    if (m_table)
        m_table->resumeLayout();
}
