#pragma once

#include "draw/drawitemforbidenareatype.h"

#include <memory>

class DrawItem;
class RuleData;
class RuleProtocolItem;

/// Makes figures for template items, the same way whether they are read or drawn.
namespace FigureMaker
{

/// A new unfinished figure of @p item for the entry @p dataId: kind, point limits, template key,
/// edge-label mode of the scene. Null when the item draws no figure.
std::unique_ptr<DrawItem> make(const RuleData& data, const RuleProtocolItem& item, int dataId,
                               DrawItemForbidenAreaType forbidden);

/// The forbidden-area type that drawing a figure of @p item gives it.
DrawItemForbidenAreaType forbiddenType(const RuleData& data, const RuleProtocolItem& item);

} // namespace FigureMaker
