#pragma once

#include <QSize>
#include <QString>

namespace UICommonMdl
{

/// False for an empty size and for one that no camera has: it would only take the memory.
bool isPlausibleSize(const QSize& size);
/// Says to the operator that @p size is refused.
QString implausibleSizeText(const QSize& size);

} // namespace UICommonMdl
