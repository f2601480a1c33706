#include "tabel/layouthold.h"

#include "tabel/widgettabel.h"

LayoutHold::LayoutHold(WidgetTabel* table) : m_table(table)
{
    if (m_table)
        m_table->holdLayout();
}

LayoutHold::~LayoutHold()
{
    if (m_table)
        m_table->releaseLayout();
}
