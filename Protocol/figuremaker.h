#pragma once

#include "draw/figuretypes.h"

#include <memory>

class DataTemplate;
class DrawItem;
class RuleDataInfo;
class RuleProtocolItem;

/// Makes figures for template items, the same way whether they are read or drawn.
namespace FigureMaker
{

/// A new unfinished figure of @p item for @p entry, not yet on the canvas: kind, point limits,
/// template key, edge labels, the item's caption. Null when the item draws no figure.
std::unique_ptr<DrawItem> make(const DataTemplate& dataTemplate, const RuleProtocolItem& item,
                               const RuleDataInfo& entry, DrawItemForbidenAreaType forbidden);

} // namespace FigureMaker
