#pragma once

#include "draw/figuretypes.h"

#include <QList>
#include <QSize>
#include <memory>

class DrawItem;
class ForbidenArea;

/// The figures on a canvas as they bound one of them, which is drawn or corrected.
struct FigureSurroundings {
    const QList<DrawItem*>& items;
    QSize canvasSize; ///< pixels

    /// What figures other than @p except forbid to the one of @p item by the rule @p type; null
    /// for nothing. What a figure forbids to itself is not among it.
    std::unique_ptr<ForbidenArea> forbidenTo(const DrawItem& item, DrawItemForbidenAreaType type,
                                             const DrawItem* except) const;
};
