#pragma once

#include <QRect>

/// What a table remembers of a child, to tell its own changes from others'.
struct ItemInfo {
    bool isLayout = false; ///< a WidgetLayout, laid out again after its width is set
    bool visible = false;  ///< last seen own visibility, whatever the parents' is
    QRect geometry;        ///< as the table last gave it
};
