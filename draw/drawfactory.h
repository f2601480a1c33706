#pragma once

#include "draw/basedrawtype.h"

#include <memory>

class BaseDraw;

/// A new figure of kind @p type; null for None and for unknown kinds.
std::shared_ptr<BaseDraw> createDraw(BaseDrawType type);
